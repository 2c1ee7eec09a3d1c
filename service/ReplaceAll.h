#pragma once

#include <string>
#include <string_view>
#include <utility>

/// The text with every occurrence of `word` replaced, from left to right; what was put in isn't looked at again. A text
/// without the word is handed back as it came.
template <class Character>
std::basic_string<Character> replaceAllIn(std::basic_string<Character> text, std::basic_string_view<Character> word,
                                          std::basic_string_view<Character> replacement)
{
    std::size_t at = text.find(word);
    if (at == text.npos) {
        return text;
    }
    std::basic_string<Character> result;
    result.reserve(text.size());
    std::size_t begin = 0;
    for (; at != text.npos; at = text.find(word, begin)) {
        result.append(text, begin, at - begin);
        result += replacement;
        begin = at + word.size();
    }
    result.append(text, begin);
    return result;
}

inline std::string replaceAll(std::string text, std::string_view word, std::string_view replacement)
{
    return replaceAllIn(std::move(text), word, replacement);
}
inline std::wstring replaceAll(std::wstring text, std::wstring_view word, std::wstring_view replacement)
{
    return replaceAllIn(std::move(text), word, replacement);
}
