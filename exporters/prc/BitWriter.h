#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace prc
{

/// Writes the bit stream of a PRC section: bits fill bytes from the most significant bit down.
class BitWriter
{
public:
    /// The low `count` bits of `value`, most significant first; count 0 to 32.
    void bits(std::uint32_t value, int count);
    void boolean(bool value) { bits(value ? 1 : 0, 1); }
    void character(std::uint8_t value) { bits(value, 8); }
    /// Byte groups, least significant first, each announced by a one bit.
    void unsignedInteger(std::uint32_t value);
    /// The same in two's complement, as few bytes as keep the sign.
    void integer(std::int32_t value);
    /// Lossless; -0 becomes 0. Throws std::invalid_argument for what is not finite.
    void real(double value);
    /// UTF-8; the empty string is the null string.
    void string(std::string_view text);

    /// Number of bits written so far.
    std::uint64_t length() const { return bytes.size() * 8 + static_cast<std::uint64_t>(pendingCount); }
    /// The stream, padded with zero bits to a whole byte. The writer is empty afterwards.
    std::vector<std::uint8_t> finish();

private:
    std::vector<std::uint8_t> bytes;
    std::uint64_t pending = 0; // the last pendingCount bits, fewer than 8 between calls
    int pendingCount = 0;
};

} // namespace prc
