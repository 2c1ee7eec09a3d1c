#include "host/orv/Mail.h"

#include "host/runtime/Spawn.h"
#include "platform/text/Text.h"

#include <string>
#include <vector>

namespace orv
{

namespace
{

std::string utf8(wchar_t const* text)
{
    return text == nullptr ? std::string() : orvtext::toUtf8(text);
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
    std::vector<std::string> arguments{"xdg-email", "--utf8", "--subject", utf8(subject), "--body", utf8(body)};
    if (attachment != nullptr && *attachment != L'\0') {
        arguments.insert(arguments.end(), {"--attach", utf8(attachment)});
    }
    arguments.push_back(address);
    return orvhost::startProgram(arguments);
}

} // namespace orv
