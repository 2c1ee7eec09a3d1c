#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace prc
{

/// Reads the bit stream of a PRC section. Every operation throws FormatError where the stream ends too early or its
/// content can't be what is asked for.
class BitReader
{
public:
    /// Keeps a view of `content`, which must outlive the reader.
    explicit BitReader(std::span<std::uint8_t const> content) : bytes(content) {}

    std::uint32_t bits(int count); ///< count 0 to 32
    bool boolean() { return bits(1) != 0; }
    std::uint8_t character() { return static_cast<std::uint8_t>(bits(8)); }
    std::uint32_t unsignedInteger();
    std::int32_t integer();
    double real(); ///< always finite
    std::string string();
    /// A number of elements that are about to follow: refused if they can't fit into what is left, even at
    /// `leastBits` (1 or more) each.
    std::uint32_t count(std::uint32_t leastBits = 1);
    void skip(std::uint64_t count);
    std::uint64_t remaining() const { return bytes.size() * 8 - position; }

private:
    std::uint32_t peek(int count) const; // zero bits beyond the end

    std::span<std::uint8_t const> bytes;
    std::uint64_t position = 0;
};

} // namespace prc
