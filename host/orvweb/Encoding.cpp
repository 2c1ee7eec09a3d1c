#include "host/orvweb/Encoding.h"

namespace orvweb
{

namespace
{

bool isUnreserved(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
           c == '_' || c == '~';
}

} // namespace

std::string percentEncoded(std::string_view bytes)
{
    constexpr char const* digits = "0123456789ABCDEF";
    std::string text;
    text.reserve(bytes.size());
    for (char const c : bytes) {
        if (isUnreserved(c)) {
            text += c;
        } else {
            auto const byte = static_cast<unsigned char>(c);
            text += '%';
            text += digits[byte >> 4];
            text += digits[byte & 0x0F];
        }
    }
    return text;
}

std::string encodedFields(std::vector<HttpRequest::Field> const& fields)
{
    std::string text;
    for (auto const& [name, value] : fields) {
        text += text.empty() ? "" : "&";
        text += percentEncoded(name) + '=' + percentEncoded(value);
    }
    return text;
}

} // namespace orvweb
