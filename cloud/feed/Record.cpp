#include "cloud/feed/Record.h"

#include "cloud/base/Text.h"
#include "cloud/feed/JsonCheck.h"
#include "cloud/feed/RecordReader.h"

#include <json/reader.h>
#include <json/writer.h>
#include <memory>
#include <mutex>

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
std::string withAuthor(std::string_view text, const Json::Value& root, const Json::Value& author)
{
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

/// A tree takes many times its text's room, so large ones are made one after the other.
std::unique_lock<std::mutex> waitForRoom(std::string_view text)
{
    static std::mutex one;
    constexpr std::size_t large = 256 * 1024;
    return text.size() > large ? std::unique_lock(one) : std::unique_lock<std::mutex>();
}

/// True if the member is there and says something else.
bool contradicts(const Json::Value& parent, const char* member, std::string_view expected)
{
    const Json::Value& value = parent[member];
    return !value.isNull() && value.asString() != expected;
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

std::variant<std::string, RecordRefusal> prepareRecord(std::string_view value, const RecordOrigin& origin)
{
    const RecordRefusal notJson{"The comment isn't a JSON object in UTF-8."};
    if (value.size() > largestRecord)
        return RecordRefusal{"The comment is larger than 4 MiB; leave out the picture or make it smaller."};
    if (!isUtf8(value) || !trimmed(value).starts_with('{') || !isPlainJson(value))
        return notJson;

    const auto room = waitForRoom(value);
    std::string record;
    {
        Json::Value root;
        if (!parse(value, root))
            return notJson;
        Json::Value author = root.isMember("author") ? root["author"] : Json::Value();
        if (!author.isObject() && !author.isNull())
            return RecordRefusal{"The comment's author isn't an object."};
        author["id"] = origin.author.publicId;
        author["name"] = origin.author.name;
        author["email"] = origin.author.email;
        record = withAuthor(value, root, author);
    }
    Json::Value stored;
    if (!parse(record, stored))
        return notJson;
    if (!everyText(stored, isUtf8))
        return RecordRefusal{"The comment holds half of a surrogate pair."};
    const auto keepsSecret = [&](std::string_view text) { return text.find(origin.token) == std::string_view::npos; };
    if (!origin.token.empty() && !everyText(stored, keepsSecret))
        return RecordRefusal{"The comment holds the session's token, which is a secret; leave it out."};
    if (auto reason = unreadable(stored))
        return RecordRefusal{std::move(*reason)};
    if (contradicts(stored["file"], "id", origin.jobId) ||
        contradicts(stored["commentcontent"], "id", origin.commentId))
        return RecordRefusal{"The comment names another model or comment than its request; send it again as it is."};
    return record;
}

std::string withAuthorsAddress(std::string_view record, std::string_view email)
{
    const auto room = waitForRoom(record);
    Json::Value root;
    if (!parse(record, root) || !root["author"].isObject())
        return std::string(record);
    Json::Value author = root["author"];
    author["email"] = std::string(email);
    return withAuthor(record, root, author);
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
