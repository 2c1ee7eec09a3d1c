#pragma once
// Little-endian numbers and UTF-16 texts out of bytes that may be damaged: reading past the end fails the reader for
// good and gives zeros.

#include "platform/text/Text.h"

#include <cstdint>
#include <span>
#include <string>

namespace orvplatform
{
using Bytes = std::span<const unsigned char>;

class ByteReader
{
public:
    explicit ByteReader(Bytes source) : bytes(source) {}

    bool ok() const { return good; }
    std::size_t position() const { return at; }
    std::size_t left() const { return bytes.size() - at; }

    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return number(4); }
    std::int16_t i16() { return static_cast<std::int16_t>(number(2)); }

    void align(std::size_t unit)
    {
        while (good && at % unit != 0 && at < bytes.size())
            ++at;
    }
    Bytes take(std::size_t count)
    {
        if (!good || count > left()) {
            good = false;
            return {};
        }
        const Bytes part = bytes.subspan(at, count);
        at += count;
        return part;
    }
    // A text up to its terminating zero, which is passed.
    std::wstring text()
    {
        const std::size_t first = at;
        while (good && u16() != 0) {
        }
        return good ? orvtext::fromUtf16Le(bytes.data() + first, (at - first) / 2 - 1) : std::wstring();
    }

private:
    std::uint32_t number(std::size_t count)
    {
        std::uint32_t value = 0;
        const Bytes part = take(count);
        for (std::size_t i = 0; i < part.size(); ++i)
            value |= static_cast<std::uint32_t>(part[i]) << 8 * i;
        return value;
    }

    Bytes bytes;
    std::size_t at = 0;
    bool good = true;
};
} // namespace orvplatform
