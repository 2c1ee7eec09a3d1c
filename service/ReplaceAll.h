#pragma once

#include <string>
#include <string_view>

/// The text with every occurrence of `word` replaced, from left to right; what was put in isn't looked at again.
inline std::string replaceAll(std::string_view text, std::string_view word, std::string_view replacement)
{
    std::string result;
    result.reserve(text.size());
    std::size_t begin = 0;
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, begin)) {
        result += text.substr(begin, at - begin);
        result += replacement;
        begin = at + word.size();
    }
    result += text.substr(begin);
    return result;
}
