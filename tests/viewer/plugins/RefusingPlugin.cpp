// A library whose first function throws.

#include <stdexcept>

extern "C" int createPlugin(void**)
{
    throw std::runtime_error("refused on purpose");
}

extern "C" int destroyPlugin(void**)
{
    return 0;
}
