#include "service/EmailAddress.h"

#include <locale>
#include <regex>
#include <stdexcept>

namespace
{

/// Letters of every language count as letters, whatever locale the process runs in.
std::locale letterLocale()
{
    try {
        return std::locale("C.UTF-8");
    } catch (std::runtime_error const&) {
        return std::locale::classic();
    }
}

} // namespace

bool isValidEmail(std::wstring const& address)
{
    auto syntax = std::regex_constants::ECMAScript;
#ifdef __GLIBCXX__
    // The default matcher recurses once a character and overflows the stack on a text pasted by mistake.
    syntax |= std::regex_constants::__polynomial;
#endif
    std::wregex pattern;
    pattern.imbue(letterLocale());
    pattern.assign(LR"((\w+)(\.|_)?(\w*)@(\w+)(\.(\w+))+)", syntax);
    return std::regex_match(address, pattern);
}

std::vector<std::wstring> splitAddresses(std::wstring const& text)
{
    std::vector<std::wstring> pieces;
    std::size_t begin = text.find_first_not_of(L',');
    while (begin != std::wstring::npos) {
        std::size_t const end = text.find(L',', begin);
        pieces.push_back(text.substr(begin, end == std::wstring::npos ? end : end - begin));
        begin = text.find_first_not_of(L',', end);
    }
    return pieces;
}
