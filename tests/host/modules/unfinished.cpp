// A library that lacks the function that takes its object back.
extern "C" int createPlugin(void** object)
{
    static int thing = 0;
    *object = &thing;
    return 0;
}
