// A library with both functions that makes no object.

extern "C" int createPlugin(void** plugin)
{
    *plugin = nullptr;
    return 0;
}

extern "C" int destroyPlugin(void**)
{
    return 0;
}
