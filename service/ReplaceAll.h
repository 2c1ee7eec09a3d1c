#pragma once

#include <string>
#include <string_view>

/// The text with every occurrence of `word` replaced, from left to right; what was put in isn't looked at again.
template <class Character>
std::basic_string<Character> replaceAllIn(std::basic_string_view<Character> text,
                                          std::basic_string_view<Character> word,
                                          std::basic_string_view<Character> replacement)
{
    std::basic_string<Character> result;
    result.reserve(text.size());
    std::size_t begin = 0;
    for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, begin)) {
        result += text.substr(begin, at - begin);
        result += replacement;
        begin = at + word.size();
    }
    result += text.substr(begin);
    return result;
}

inline std::string replaceAll(std::string_view text, std::string_view word, std::string_view replacement)
{
    return replaceAllIn(text, word, replacement);
}
inline std::wstring replaceAll(std::wstring_view text, std::wstring_view word, std::wstring_view replacement)
{
    return replaceAllIn(text, word, replacement);
}
