#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace orv
{

/// A unique identity of 128 bits (RFC 9562, version 4).
class GUID
{
public:
    GUID(); ///< a new random identity

    /// Reads the form of toString, with or without braces; any other text gives the nil identity.
    explicit GUID(wchar_t const* text);

    /// 38 characters: braces around 36 of lower-case hexadecimal digits and hyphens.
    std::wstring toString() const;

    bool operator==(GUID const&) const = default;

private:
    std::array<std::uint8_t, 16> bytes{};
};

} // namespace orv
