// A library that nobody can make a plug-in with: it lacks both functions, or the one that takes the plug-in back.
extern "C" int somethingElse()
{
    return 0;
}

#ifdef ORV_TEST_CREATES
extern "C" int createPlugin(void** plugin)
{
    static int noPlugin = 0; // must never be used
    *plugin = &noPlugin;
    return 0;
}
#endif
