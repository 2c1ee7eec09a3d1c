// What an exporter in another directory depends on.
extern "C" int deferredDependency()
{
    return 11;
}
