#include "fuzz/Reference.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"

#include <cstdlib>
#include <limits>
#include <string>

// The format as a table: one line a member, in the order in which a reader takes them. The documents are only looked
// at; what a reader that creates missing members would say of a wrong kind is said here in words.

namespace orvfuzz
{

namespace
{

Json::Value const absent;

/// The members of a value; null and an absent one have none.
Json::Value const& memberOf(Json::Value const& value, std::string const& name)
{
    if (value.isNull()) {
        return absent;
    }
    if (!value.isObject()) {
        throw Json::LogicError("in Json::Value::resolveReference(key, end): requires objectValue");
    }
    return value.isMember(name) ? value[name] : absent;
}

/// The elements of a value; null has none.
Json::Value const& elementOf(Json::Value const& value, Json::ArrayIndex index)
{
    if (value.isNull()) {
        return absent;
    }
    if (!value.isArray()) {
        throw Json::LogicError("in Json::Value::operator[](ArrayIndex): requires arrayValue");
    }
    return value.isValidIndex(index) ? value[index] : absent;
}

std::string bytesOf(Json::Value const& value)
{
    std::string const text = value.asString();
    return text.substr(0, text.find('\0'));
}

void read(Json::Value const& value, std::wstring& text)
{
    text = orvtext::fromUtf8(bytesOf(value));
}

void read(Json::Value const& value, bool& flag)
{
    flag = value.asBool();
}

void read(Json::Value const& value, int& number)
{
    number = value.asInt();
}

void read(Json::Value const& value, double& number)
{
    number = value.asDouble();
}

template <std::size_t N>
void read(Json::Value const& value, orvmath::Tuple<float, N>& numbers)
{
    for (unsigned char i = 0; i < N; ++i) {
        numbers[i] = static_cast<float>(elementOf(value, i).asDouble());
    }
}

template <class Item>
void read(Json::Value const& value, std::vector<Item>& list)
{
    for (Json::ArrayIndex i = 0; i != value.size(); ++i) {
        Item item{};
        read(elementOf(value, i), item);
        list.push_back(item);
    }
}

template <class Item>
void read(Json::Value const& value, std::map<int, Item>& items)
{
    constexpr long long least = std::numeric_limits<int>::min();
    constexpr long long most = std::numeric_limits<int>::max();
    for (auto each = value.begin(); each != value.end(); ++each) {
        long long const key = std::strtoll(each.name().c_str(), nullptr, 10);
        Item item{};
        read(*each, item);
        items.insert({static_cast<int>(key < least ? least : key > most ? most : key), item});
    }
}

/// Reads what stands at the path "group.group.name" below the document into the field.
struct Member {
    char const* path;
    void (*take)(Json::Value const& value, Feed& feed);
};

#define MEMBER(path, field)                                                                                            \
    Member                                                                                                             \
    {                                                                                                                  \
        path, [](Json::Value const& value, Feed& feed) { read(value, feed.field); }                                    \
    }

constexpr Member members[] = {
    MEMBER("author.id", author.id),
    MEMBER("author.name", author.name),
    MEMBER("author.email", author.email),
    MEMBER("author.canDelete", author.canDelete),
    MEMBER("author.canEdit", author.canEdit),
    MEMBER("file.id", file.id),
    MEMBER("file.name", file.name),
    MEMBER("action.type", action.type),
    MEMBER("action.value", action.value),
    MEMBER("commentcontent.viewport.eye", comment.viewport.eye),
    MEMBER("commentcontent.viewport.target", comment.viewport.target),
    MEMBER("commentcontent.viewport.up", comment.viewport.up),
    MEMBER("commentcontent.viewport.zoom", comment.viewport.zoom),
    MEMBER("commentcontent.objects.colored", comment.objects.colored),
    MEMBER("commentcontent.objects.transparent", comment.objects.transparent),
    MEMBER("commentcontent.objects.hidden", comment.objects.hidden),
    MEMBER("commentcontent.objects.nodecolor", comment.objects.nodecolor),
    MEMBER("commentcontent.objects.nodetransform", comment.objects.nodetransform),
    MEMBER("commentcontent.id", comment.id),
    MEMBER("commentcontent.commentType", comment.commentType),
    MEMBER("commentcontent.content", comment.content),
    MEMBER("commentcontent.publishedTime", comment.publishedTime),
    MEMBER("commentcontent.updatedTime", comment.updatedTime),
    MEMBER("source", source),
    MEMBER("thumbnail", thumbnail),
};

#undef MEMBER

Json::Value const& valueAt(Json::Value const& document, std::string path)
{
    Json::Value const* value = &document;
    for (std::size_t dot = path.find('.'); dot != std::string::npos; dot = path.find('.')) {
        value = &memberOf(*value, path.substr(0, dot));
        path.erase(0, dot + 1);
    }
    return memberOf(*value, path);
}

} // namespace

std::vector<Feed> referenceRead(std::wstring const& response)
{
    std::vector<Feed> feeds;
    Json::Value root;
    if (!parseJson(orvtext::toUtf8(response), root)) {
        return feeds;
    }
    for (Json::ArrayIndex i = 0; i != root.size(); ++i) {
        Json::Value const& element = elementOf(root, i);
        Json::Value document;
        if (!parseJson(bytesOf(memberOf(element, "Content")), document)) {
            continue;
        }
        Feed feed;
        for (Member const& member : members) {
            member.take(valueAt(document, member.path), feed);
        }
        if (feed.thumbnail.empty()) {
            read(memberOf(element, "Thumbnail"), feed.thumbnail);
        }
        feeds.push_back(feed);
    }
    return feeds;
}

} // namespace orvfuzz
