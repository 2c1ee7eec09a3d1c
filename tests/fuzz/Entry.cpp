#include "fuzz/Targets.h"

/// The fuzzer's way in. ORV_FUZZ_TARGET names the target of this program.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    orvfuzz::ORV_FUZZ_TARGET({data, size});
    return 0;
}
