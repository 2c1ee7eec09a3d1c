#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvcloud
{

/// Gives the present moment in seconds since 1970 (UTC). Injected, so that expiry and throttling can be tested.
using Clock = std::function<std::int64_t()>;

/// The system's own clock.
Clock systemClock();

/// True for well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view text);

/// True if the text holds a byte below 0x20 or 0x7f.
bool hasControlCharacter(std::string_view text);

/// Letters A to Z in lower case, all other bytes as they are. E-mail addresses are compared in this form.
std::string lowerAscii(std::string_view text);

/// Without blanks, tabs and line ends at either side.
std::string_view trimmed(std::string_view text);

/// The longest beginning of at most `mostBytes` bytes that ends between characters. The text is UTF-8.
std::string_view cut(std::string_view text, std::size_t mostBytes);

/// With a question mark for every control character, so that the text is one line.
std::string oneLine(std::string text);

std::vector<std::string_view> split(std::string_view text, std::string_view separators);

/// A text enclosed in quotation marks as JSON writes it, ASCII only. The text is UTF-8 without NUL.
std::string jsonString(std::string_view text);

/// A moment as log lines show it, e.g. "2026-11-20T08:25:01Z".
std::string isoTime(std::int64_t seconds);

/// A moment as HTTP headers show it (RFC 9110, 5.6.7), e.g. "Fri, 20 Nov 2026 08:25:01 GMT".
std::string httpTime(std::int64_t seconds);

/// A moment in UTC in the form of strftime, whose names are English ones.
std::string formattedTime(std::int64_t seconds, const char* form);

/// True for an address that mail can be sent to: one "@", something on both sides, no blanks, control characters,
/// quotation marks, commas or angle brackets, at most 254 bytes. Whether it exists is for the mail system to find out.
bool isMailAddress(std::string_view address);

} // namespace orvcloud
