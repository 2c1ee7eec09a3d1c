// A library that is no plug-in: it lacks the two functions.

extern "C" int somethingElse()
{
    return 7;
}
