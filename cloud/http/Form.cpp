#include "cloud/http/Form.h"

#include "cloud/base/Text.h"

#include <algorithm>

namespace orvcloud
{
namespace
{
constexpr std::size_t mostParameters = 64;

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}
} // namespace

bool Parameters::add(std::string name, std::string value)
{
    if (find(name))
        return false;
    entries.emplace_back(std::move(name), std::move(value));
    return true;
}

const std::string* Parameters::find(std::string_view name) const
{
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& e) { return e.first == name; });
    return found == entries.end() ? nullptr : &found->second;
}

std::optional<std::string> decodeComponent(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '+') {
            result += ' ';
        } else if (text[i] != '%') {
            result += text[i];
        } else {
            if (text.size() - i < 3)
                return std::nullopt;
            const int high = hexDigit(text[i + 1]);
            const int low = hexDigit(text[i + 2]);
            if (high < 0 || low < 0)
                return std::nullopt;
            result += static_cast<char>(high * 16 + low);
            i += 2;
        }
    }
    return result;
}

std::optional<Parameters> parseForm(std::string_view text)
{
    Parameters parameters;
    while (!text.empty()) {
        const std::string_view pair = text.substr(0, text.find('&'));
        text.remove_prefix(std::min(text.size(), pair.size() + 1));
        if (pair.empty())
            continue;
        const auto equals = pair.find('=');
        auto name = decodeComponent(pair.substr(0, equals));
        auto value = decodeComponent(equals == std::string_view::npos ? std::string_view() : pair.substr(equals + 1));
        if (!name || !value || !isUtf8(*name) || !isUtf8(*value) || parameters.all().size() == mostParameters)
            return std::nullopt;
        if (!parameters.add(std::move(*name), std::move(*value)))
            return std::nullopt;
    }
    return parameters;
}

} // namespace orvcloud
