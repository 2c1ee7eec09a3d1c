// A library that nobody can make a plug-in with.
extern "C" int somethingElse()
{
    return 0;
}
