#pragma once

#include <cstdint>

namespace prc
{

/// Length of the longest code, in bits.
inline constexpr int longestDoubleCode = 22;

/// One entry of the prefix code that starts every number of a PRC file (ISO 14739-1): it stands for a complete
/// magnitude, or for a biased exponent whose mantissa follows.
struct DoubleCode {
    std::uint32_t bits = 0; ///< the code in the low `length` bits, first bit highest
    int length = 0;         ///< bits, 2 to 22
    bool isValue = false;   ///< the code stands for `value`, else for `exponent`
    double value = 0;       ///< the magnitude, if isValue
    int exponent = 0;       ///< biased exponent, 0 to 2047
};

/// The code that a non-negative finite number starts with: its own if it has one, else that of its exponent.
DoubleCode codeFor(double magnitude);

/// The code of a biased exponent, 0 to 2047.
DoubleCode codeForExponent(int biased);

/// The code at the head of the next 22 bits of a stream (in the low 22 bits of `next`). There is always one: the code
/// is complete.
DoubleCode codeAt(std::uint32_t next);

} // namespace prc
