#include "host/orvweb/Encoding.h"

#include <algorithm>
#include <array>

namespace orvweb
{

namespace
{

constexpr std::array<bool, 256> unreservedBytes()
{
    std::array<bool, 256> table{};
    for (char const c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~")) {
        table[static_cast<unsigned char>(c)] = true;
    }
    return table;
}

bool isUnreserved(char c)
{
    static constexpr std::array<bool, 256> unreserved = unreservedBytes();
    return unreserved[static_cast<unsigned char>(c)];
}

/// Appends in place: a comment is megabytes long where its picture is.
void appendEncoded(std::string& text, std::string_view bytes)
{
    constexpr char const* digits = "0123456789ABCDEF";
    std::size_t const escapes =
        static_cast<std::size_t>(std::count_if(bytes.begin(), bytes.end(), [](char c) { return !isUnreserved(c); }));
    std::size_t const begin = text.size();
    text.resize(begin + bytes.size() + 2 * escapes);
    char* end = text.data() + begin;
    for (char const c : bytes) {
        if (isUnreserved(c)) {
            *end++ = c;
        } else {
            auto const byte = static_cast<unsigned char>(c);
            *end++ = '%';
            *end++ = digits[byte >> 4];
            *end++ = digits[byte & 0x0F];
        }
    }
}

} // namespace

std::string percentEncoded(std::string_view bytes)
{
    std::string text;
    appendEncoded(text, bytes);
    return text;
}

std::string encodedFields(std::vector<HttpRequest::Field> const& fields)
{
    std::string text;
    for (auto const& [name, value] : fields) {
        text += text.empty() ? "" : "&";
        appendEncoded(text, name);
        text += '=';
        appendEncoded(text, value);
    }
    return text;
}

} // namespace orvweb
