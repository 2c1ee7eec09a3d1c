#include "service/EmailAddress.h"

#include <locale>
#include <regex>

namespace
{

/// Above what mail allows, and short enough for the standard library's matcher, which recurses once a character.
constexpr std::size_t longestAddress = 512;

} // namespace

bool isValidEmail(std::wstring const& address)
{
    if (address.size() > longestAddress) {
        return false;
    }
    std::wregex pattern;
    pattern.imbue(std::locale::classic()); // word characters are those of ASCII, whatever the process's locale
    pattern.assign(LR"((\w+)(\.|_)?(\w*)@(\w+)(\.(\w+))+)");
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
