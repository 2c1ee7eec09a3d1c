#include "exporters/prc/BitWriter.h"

#include "exporters/prc/DoubleCodes.h"

#include <array>
#include <bit>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace prc
{

namespace
{

// The six mantissa bytes below the top nibble. A byte can name an equal one that came before, and the tail can be cut
// short when it repeats.
void mantissaBytes(BitWriter& out, std::array<std::uint8_t, 6> const& bytes)
{
    constexpr std::uint32_t repeatToEnd = 0;
    constexpr std::uint32_t repeatButLast = 6;

    auto const writeByte = [&](std::size_t i) {
        for (std::size_t distance = 1; distance <= i; ++distance)
            if (bytes[i - distance] == bytes[i]) {
                out.boolean(false);
                out.bits(static_cast<std::uint32_t>(distance), 3);
                return;
            }
        out.boolean(true);
        out.character(bytes[i]);
    };

    std::size_t same = 4; // first of the equal bytes that end with the last but one
    while (same > 0 && bytes[same - 1] == bytes[4])
        --same;
    for (std::size_t i = 0; i <= same; ++i)
        writeByte(i);
    if (same == 4) {
        writeByte(5);
    } else if (bytes[5] == bytes[4]) {
        out.boolean(false);
        out.bits(repeatToEnd, 3);
    } else {
        out.boolean(false);
        out.bits(repeatButLast, 3);
        out.character(bytes[5]);
    }
}

} // namespace

void BitWriter::bits(std::uint32_t value, int count)
{
    std::uint64_t const mask = (std::uint64_t{1} << count) - 1;
    pending = (pending << count) | (value & mask);
    pendingCount += count;
    while (pendingCount >= 8) {
        pendingCount -= 8;
        bytes.push_back(static_cast<std::uint8_t>(pending >> pendingCount));
    }
    pending &= (std::uint64_t{1} << pendingCount) - 1;
}

void BitWriter::unsignedInteger(std::uint32_t value)
{
    for (; value != 0; value >>= 8)
        bits(0x100U | (value & 0xFFU), 9);
    boolean(false);
}

void BitWriter::integer(std::int32_t value)
{
    std::int32_t rest = value;
    if (value != 0)
        for (;;) {
            auto const byte = static_cast<std::uint32_t>(rest) & 0xFFU;
            bits(0x100U | byte, 9);
            rest >>= 8;
            bool const negative = (byte & 0x80U) != 0;
            if ((rest == 0 && !negative) || (rest == -1 && negative))
                break;
        }
    boolean(false);
}

void BitWriter::real(double value)
{
    if (!std::isfinite(value))
        throw std::invalid_argument("a PRC file can't hold a number that is not finite");
    DoubleCode const code = codeFor(std::abs(value));
    bits(code.bits, code.length);
    if (value == 0)
        return;
    boolean(value < 0);
    if (code.isValue)
        return;
    std::uint64_t const mantissa = std::bit_cast<std::uint64_t>(value) & ((std::uint64_t{1} << 52) - 1);
    boolean(mantissa != 0);
    if (mantissa == 0)
        return;
    bits(static_cast<std::uint32_t>(mantissa >> 48), 4);
    std::array<std::uint8_t, 6> tail;
    for (std::size_t i = 0; i < tail.size(); ++i)
        tail[i] = static_cast<std::uint8_t>(mantissa >> (40 - 8 * i));
    mantissaBytes(*this, tail);
}

void BitWriter::string(std::string_view text)
{
    boolean(!text.empty());
    if (text.empty())
        return;
    unsignedInteger(static_cast<std::uint32_t>(text.size()));
    for (char const c : text)
        character(static_cast<std::uint8_t>(c));
}

std::vector<std::uint8_t> BitWriter::finish()
{
    if (pendingCount > 0)
        bits(0, 8 - pendingCount);
    return std::exchange(bytes, {});
}

} // namespace prc
