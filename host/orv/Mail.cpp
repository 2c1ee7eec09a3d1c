#include "host/orv/Mail.h"

#include "host/runtime/Spawn.h"
#include "platform/text/Text.h"

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

/// The system passes an argument of less than 32 memory pages to a program. A longer text ends between two characters,
/// and says so.
std::string fitted(std::string text)
{
    auto const longest = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) * 32 - 1;
    if (text.size() <= longest) {
        return text;
    }
    std::string const note = "\n\n[The rest was too long for the mail program.]";
    std::size_t end = longest - note.size();
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return text.substr(0, end) + note;
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
    // An address that looks like an option would be taken for one.
    if (address.empty() || address.front() == '-') {
        return false;
    }
    std::vector<std::string> arguments{"xdg-email", "--utf8", "--subject", utf8(subject), "--body", fitted(utf8(body))};
    if (attachment != nullptr && *attachment != L'\0') {
        arguments.insert(arguments.end(), {"--attach", utf8(attachment)});
    }
    arguments.push_back(address);
    return orvhost::startProgram(arguments);
}

} // namespace orv
