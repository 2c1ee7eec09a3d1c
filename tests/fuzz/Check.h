#pragma once

#include <cstdio>
#include <cstdlib>

namespace orvfuzz
{

/// Ends the process where a promise is broken: the fuzzer keeps the input that did it.
inline void check(bool isKept, char const* promise)
{
    if (!isKept) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

} // namespace orvfuzz
