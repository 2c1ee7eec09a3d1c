// A small library with an entry point and resources.
extern "C" int answer()
{
    return 42;
}
