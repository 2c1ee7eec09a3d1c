#include "host/orv/Mail.h"

#include "host/orvweb/Encoding.h"
#include "host/runtime/Spawn.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <string>
#include <vector>

#include <unistd.h>

namespace orv
{

namespace
{

std::string utf8(wchar_t const* text)
{
    return text == nullptr ? std::string() : orvtext::toUtf8(text);
}

constexpr char note[] = "%0D%0A%0D%0A%5BThe%20rest%20was%20too%20long%20for%20the%20mail%20program.%5D";
constexpr std::size_t spare = 1024; ///< bytes for what the desktop's tools put around the address

/// The system passes an argument of less than 32 memory pages to a program.
std::size_t longestArgument()
{
    return static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) * 32 - 1 - spare;
}

/// "local@domain"; the sign itself stays, as mail addresses in URLs have it.
std::string encodedAddress(std::string const& address)
{
    auto const sign = address.rfind('@');
    if (sign == std::string::npos) {
        return orvweb::percentEncoded(address);
    }
    return orvweb::percentEncoded(address.substr(0, sign)) + "@" + orvweb::percentEncoded(address.substr(sign + 1));
}

/// How many bytes the character that begins at `at` has, in valid UTF-8. A carriage return takes its line feed along.
std::size_t lengthOfCharacter(std::string const& text, std::size_t at)
{
    std::size_t end = at + 1;
    if (text[at] == '\r' && end < text.size() && text[end] == '\n') {
        return 2;
    }
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        ++end;
    }
    return end - at;
}

/// Percent-encoded with mail's line ends (RFC 6068) and no longer than `room`: a longer text ends between two
/// characters, and says so.
std::string encodedText(std::string const& text, std::size_t room)
{
    std::string encoded;
    std::size_t cut = 0; // the longest part that leaves room for the note
    for (std::size_t at = 0; at < text.size();) {
        std::size_t const length = lengthOfCharacter(text, at);
        std::string const character = text.substr(at, length);
        encoded += character == "\n" ? "%0D%0A" : orvweb::percentEncoded(character);
        at += length;
        if (encoded.size() + sizeof note - 1 <= room) {
            cut = encoded.size();
        }
        if (encoded.size() > room) {
            return encoded.substr(0, cut) + note;
        }
    }
    return encoded;
}

} // namespace

bool Mail::isClientAvailable()
{
    // The desktop's own tool sends the mail; it needs a client that has announced itself for mail addresses.
    auto const client = orvhost::outputOf({"xdg-mime", "query", "default", "x-scheme-handler/mailto"});
    return client && client->find(".desktop") != std::string::npos &&
           orvhost::outputOf({"xdg-email", "--version"}).has_value();
}

bool Mail::send(HWND /*window*/, wchar_t const* to, wchar_t const* subject, wchar_t const* body,
                wchar_t const* attachment)
{
    std::string const address = utf8(to);
    if (address.empty()) {
        return false;
    }
    std::vector<std::string> arguments{"xdg-email"};
    std::string const file = utf8(attachment);
    if (!file.empty()) {
        arguments.insert(arguments.end(), {"--attach", file});
    }
    // One URL: the tool's own options refuse an empty text, take "--help" for an option, and read backslashes.
    std::string url = "mailto:" + encodedAddress(address) + "?subject=" + orvweb::percentEncoded(utf8(subject));
    std::string const text = utf8(body);
    if (!text.empty()) {
        url += "&body=";
        std::size_t const taken = url.size() + 3 * file.size(); // the tool puts the file in, encoded
        url += encodedText(text, std::max(longestArgument(), taken + sizeof note) - taken);
    }
    arguments.push_back(url);
    return orvhost::startProgram(arguments);
}

} // namespace orv
