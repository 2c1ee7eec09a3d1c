#include "cloud/feed/Record.h"

#include "cloud/base/Text.h"
#include "cloud/feed/RecordReader.h"

#include <algorithm>
#include <json/reader.h>
#include <json/writer.h>
#include <memory>

namespace orvcloud
{
namespace
{
/// Strict JSON without a member given twice: what two readers could understand in different ways isn't taken.
bool parse(std::string_view text, Json::Value& root)
{
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    try {
        return reader->parse(text.data(), text.data() + text.size(), &root, nullptr);
    } catch (const Json::Exception&) {
        return false; // nested too deep
    }
}

std::string written(const Json::Value& value)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["precision"] = 17;
    builder["commentStyle"] = "None";
    return Json::writeString(builder, value);
}

/// The record's text with another author in it. The rest isn't written anew, so numbers keep their digits.
std::string withAuthor(std::string_view text, const Json::Value& root, const Account& account)
{
    Json::Value author = root.isMember("author") ? root["author"] : Json::Value();
    author["id"] = account.publicId;
    author["name"] = account.name;
    author["email"] = account.email;
    std::string result;
    result.reserve(text.size() + 256);
    if (root.isMember("author")) {
        const auto begin = static_cast<std::size_t>(root["author"].getOffsetStart());
        const auto end = static_cast<std::size_t>(root["author"].getOffsetLimit());
        result.append(text.substr(0, begin)).append(written(author)).append(text.substr(end));
    } else {
        const auto begin = text.find('{') + 1;
        result.append(text.substr(0, begin)).append("\"author\":").append(written(author));
        result.append(root.empty() ? "" : ",").append(text.substr(begin));
    }
    return result;
}

/// Holds every text of a value, members' names too, against a condition.
template <class Condition>
bool everyText(const Json::Value& value, const Condition& holds)
{
    const char* begin = nullptr;
    const char* end = nullptr;
    if (value.isString())
        return !value.getString(&begin, &end) || holds(std::string_view(begin, static_cast<std::size_t>(end - begin)));
    for (auto member = value.begin(); member != value.end(); ++member)
        if ((value.isObject() && !holds(std::string_view(member.name()))) || !everyText(*member, holds))
            return false;
    return true;
}
} // namespace

std::variant<std::string, RecordRefusal> prepareRecord(std::string_view value, const Account& account,
                                                       std::string_view token)
{
    if (value.size() > largestRecord)
        return RecordRefusal{"The comment is larger than 4 MiB; leave out the picture or make it smaller."};
    const bool isText = std::all_of(value.begin(), value.end(), [](char c) {
        return static_cast<unsigned char>(c) >= 0x20 || c == '\n' || c == '\r' || c == '\t';
    });
    Json::Value root;
    if (!isText || !isUtf8(value) || !trimmed(value).starts_with('{') || !parse(value, root))
        return RecordRefusal{"The comment isn't a JSON object in UTF-8."};
    if (root.isMember("author") && !root["author"].isObject() && !root["author"].isNull())
        return RecordRefusal{"The comment's author isn't an object."};

    std::string record = withAuthor(value, root, account);
    Json::Value stored;
    if (!parse(record, stored))
        return RecordRefusal{"The comment isn't a JSON object in UTF-8."};
    if (auto reason = unreadable(stored))
        return RecordRefusal{std::move(*reason)};
    if (!everyText(stored, isUtf8))
        return RecordRefusal{"The comment holds half of a surrogate pair."};
    const auto keepsSecret = [token](std::string_view text) { return text.find(token) == std::string_view::npos; };
    if (!token.empty() && !everyText(stored, keepsSecret))
        return RecordRefusal{"The comment holds the session's token, which is a secret; leave it out."};
    return record;
}

std::string withPlusSigns(std::string_view value)
{
    constexpr std::string_view escape = "%2b";
    std::string result;
    result.reserve(value.size());
    for (auto found = value.find(escape); found != std::string_view::npos; found = value.find(escape)) {
        result.append(value.substr(0, found)).append("+");
        value.remove_prefix(found + escape.size());
    }
    return result.append(value);
}

} // namespace orvcloud
