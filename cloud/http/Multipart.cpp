#include "cloud/http/Multipart.h"

#include "cloud/base/Text.h"

#include <algorithm>

namespace orvcloud
{
namespace
{
constexpr std::size_t mostHeaderBytes = 8192;

/// The value of one parameter of a header, e.g. `name` in `form-data; name="file"`. In quoted text a backslash escapes
/// the character behind it, and browsers send %22 for a quotation mark.
std::optional<std::string> headerParameter(std::string_view header, std::string_view wanted)
{
    auto rest = header.substr(std::min(header.size(), header.find(';')));
    while (!rest.empty()) {
        rest.remove_prefix(1); // the semicolon
        const auto equals = rest.find('=');
        if (equals == std::string_view::npos)
            return std::nullopt;
        const std::string name = lowerAscii(trimmed(rest.substr(0, equals)));
        rest = rest.substr(equals + 1);
        std::string value;
        if (!rest.empty() && rest.front() == '"') {
            std::size_t i = 1;
            for (; i < rest.size() && rest[i] != '"'; ++i) {
                if (rest[i] == '\\' && i + 1 < rest.size())
                    ++i;
                value += rest[i];
            }
            if (i >= rest.size())
                return std::nullopt;
            rest = rest.substr(i + 1);
            rest = rest.substr(std::min(rest.size(), rest.find(';')));
        } else {
            const auto end = std::min(rest.size(), rest.find(';'));
            value = trimmed(rest.substr(0, end));
            rest = rest.substr(end);
        }
        if (name == wanted)
            return value;
    }
    return std::nullopt;
}
} // namespace

MultipartReader::MultipartReader(std::string_view boundary, MultipartEvents& receiver)
    : delimiter("\r\n--" + std::string(boundary)), events(receiver),
      pending("\r\n") // the first delimiter stands at the beginning of the body, without a line end in front
{
}

bool MultipartReader::read(std::string_view bytes)
{
    if (state == State::epilogue)
        return true; // to be ignored, as RFC 2046 has it
    pending += bytes;
    std::size_t before = 0;
    State stateBefore = state;
    do {
        before = pending.size();
        stateBefore = state;
        if (!readSome())
            return false;
    } while (state != State::epilogue && (pending.size() != before || state != stateBefore));
    return true;
}

bool MultipartReader::readSome()
{
    switch (state) {
    case State::preamble: {
        // No preamble is allowed: the form's first byte belongs to its first boundary.
        const auto compared = std::min(pending.size(), delimiter.size());
        if (pending.compare(0, compared, delimiter, 0, compared) != 0)
            return false;
        if (compared == delimiter.size()) {
            pending.erase(0, compared);
            state = State::afterBoundary;
        }
        return true;
    }
    case State::afterBoundary:
        if (pending.size() < 2)
            return true;
        if (pending.starts_with("--")) {
            state = State::epilogue;
            pending.clear();
            return true;
        }
        if (!pending.starts_with("\r\n"))
            return false;
        pending.erase(0, 2);
        headerBytes = 0;
        partName.reset();
        partIsFile = false;
        state = State::headers;
        return true;
    case State::headers:
        return readHeaderLine();
    case State::data:
        return readData();
    case State::epilogue:
        return true;
    }
    return false;
}

bool MultipartReader::readHeaderLine()
{
    const auto end = pending.find("\r\n");
    if (end == std::string::npos)
        return pending.size() <= mostHeaderBytes;
    headerBytes += end + 2;
    if (headerBytes > mostHeaderBytes)
        return false;
    const std::string line = pending.substr(0, end);
    pending.erase(0, end + 2);
    if (line.empty()) {
        if (!partName || !events.beginPart(*partName, partIsFile))
            return false;
        state = State::data;
        return true;
    }
    const auto colon = line.find(':');
    if (colon == std::string::npos)
        return false;
    if (lowerAscii(trimmed(std::string_view(line).substr(0, colon))) == "content-disposition") {
        const auto value = trimmed(std::string_view(line).substr(colon + 1));
        if (partName || lowerAscii(trimmed(value.substr(0, value.find(';')))) != "form-data")
            return false;
        partName = headerParameter(value, "name");
        partIsFile = headerParameter(value, "filename").has_value();
    }
    return true;
}

bool MultipartReader::readData()
{
    const auto found = pending.find(delimiter);
    // As long as the delimiter may have begun at the end of what came, that much is held back.
    const auto length =
        found != std::string::npos ? found : pending.size() - std::min(pending.size(), delimiter.size() - 1);
    if (length > 0 && !events.partData(std::string_view(pending).substr(0, length)))
        return false;
    if (found == std::string::npos) {
        pending.erase(0, length);
        return true;
    }
    pending.erase(0, found + delimiter.size());
    state = State::afterBoundary;
    return events.endPart();
}

std::optional<std::string> multipartBoundary(std::string_view contentType)
{
    if (lowerAscii(trimmed(contentType.substr(0, contentType.find(';')))) != "multipart/form-data")
        return std::nullopt;
    auto boundary = headerParameter(contentType, "boundary");
    if (!boundary || boundary->empty() || boundary->size() > 70 || hasControlCharacter(*boundary))
        return std::nullopt;
    return boundary;
}

} // namespace orvcloud
