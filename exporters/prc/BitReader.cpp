#include "exporters/prc/BitReader.h"

#include "exporters/prc/DoubleCodes.h"
#include "exporters/prc/FormatError.h"

#include <array>
#include <bit>
#include <cmath>

namespace prc
{

namespace
{

std::uint64_t mantissaBytes(BitReader& in, int exponent, std::uint32_t nibble)
{
    constexpr std::uint32_t repeatToEnd = 0;
    constexpr std::uint32_t repeatButLast = 6;

    // The byte before the first is made of the bits that stand before it in the number.
    std::array<std::uint8_t, 7> bytes{
        static_cast<std::uint8_t>(((static_cast<std::uint32_t>(exponent) & 0xFU) << 4) | nibble)};
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        if (in.boolean()) {
            bytes[i] = in.character();
            continue;
        }
        std::uint32_t const distance = in.bits(3);
        if (distance == repeatToEnd || distance == repeatButLast) {
            for (std::size_t j = i; j < bytes.size(); ++j)
                bytes[j] = bytes[i - 1];
            if (distance == repeatButLast)
                bytes.back() = in.character();
            break;
        }
        if (distance > i)
            throw FormatError("a number repeats a byte that isn't there");
        bytes[i] = bytes[i - distance];
    }
    std::uint64_t mantissa = 0;
    for (std::size_t i = 1; i < bytes.size(); ++i)
        mantissa = (mantissa << 8) | bytes[i];
    return mantissa;
}

} // namespace

std::uint32_t BitReader::peek(int count) const
{
    std::uint64_t window = 0;
    std::uint64_t const first = position / 8;
    for (std::uint64_t i = first; i < first + 5; ++i)
        window = (window << 8) | (i < bytes.size() ? bytes[i] : 0U);
    window >>= 40 - static_cast<int>(position % 8) - count;
    return static_cast<std::uint32_t>(window & ((std::uint64_t{1} << count) - 1));
}

std::uint32_t BitReader::bits(int count)
{
    std::uint32_t const value = peek(count);
    skip(static_cast<std::uint64_t>(count));
    return value;
}

void BitReader::skip(std::uint64_t count)
{
    if (count > remaining())
        throw FormatError("a section ends in the middle of its content");
    position += count;
}

std::uint32_t BitReader::unsignedInteger()
{
    std::uint32_t value = 0;
    for (int shift = 0; boolean(); shift += 8) {
        if (shift > 24)
            throw FormatError("a whole number has more than 32 bits");
        value |= static_cast<std::uint32_t>(character()) << shift;
    }
    return value;
}

std::int32_t BitReader::integer()
{
    std::uint32_t value = 0;
    int shift = 0;
    for (; boolean(); shift += 8) {
        if (shift > 24)
            throw FormatError("a whole number has more than 32 bits");
        value |= static_cast<std::uint32_t>(character()) << shift;
    }
    if (shift > 0 && shift < 32 && ((value >> (shift - 1)) & 1U))
        value |= ~std::uint32_t{0} << shift;
    return static_cast<std::int32_t>(value);
}

double BitReader::real()
{
    DoubleCode const code = codeAt(peek(longestDoubleCode));
    skip(static_cast<std::uint64_t>(code.length));
    if (code.isValue && code.value == 0)
        return 0;
    bool const negative = boolean();
    double value = code.value;
    if (!code.isValue) {
        std::uint64_t mantissa = 0;
        if (boolean()) {
            std::uint32_t const nibble = bits(4);
            mantissa = (static_cast<std::uint64_t>(nibble) << 48) | mantissaBytes(*this, code.exponent, nibble);
        }
        value = std::bit_cast<double>((static_cast<std::uint64_t>(code.exponent) << 52) | mantissa);
        if (!std::isfinite(value))
            throw FormatError("a number is not finite");
    }
    return negative ? -value : value;
}

std::string BitReader::string()
{
    if (!boolean())
        return {};
    std::string text(count(8), '\0');
    for (char& c : text)
        c = static_cast<char>(character());
    return text;
}

std::uint32_t BitReader::count(std::uint32_t leastBits)
{
    std::uint32_t const number = unsignedInteger();
    if (number > remaining() / leastBits)
        throw FormatError("a list claims more elements than the section can hold");
    return number;
}

} // namespace prc
