#include "feed/FeedReader.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string_view>

namespace
{

/// A value's text in UTF-8. Long ones, pictures and documents, are looked at where they stand.
class Utf8Text
{
public:
    explicit Utf8Text(Json::Value const& value)
    {
        char const* begin = nullptr;
        char const* end = nullptr;
        if (!value.getString(&begin, &end)) {
            own = value.asString(); // of a number, a flag or null; throws for the rest
            begin = own.data();
            end = begin + own.size();
        }
        text = std::string_view(begin, static_cast<std::size_t>(end - begin));
        text = text.substr(0, text.find('\0')); // a record's texts end at their first NUL
    }
    Utf8Text(Utf8Text const&) = delete;
    Utf8Text& operator=(Utf8Text const&) = delete;

    /// Valid as long as the value stays as it is.
    std::string_view view() const { return text; }

private:
    std::string own;
    std::string_view text;
};

std::wstring textOf(Json::Value const& value)
{
    return orvtext::fromUtf8(Utf8Text(value).view());
}

float floatOf(Json::Value const& value)
{
    return static_cast<float>(value.asDouble());
}

// The element access below is the non-const one on purpose: it creates what is missing as null, and null reads as zero.
Vector3 vectorOf(Json::Value& value)
{
    return Vector3{floatOf(value[0U]), floatOf(value[1U]), floatOf(value[2U])};
}

Matrix4 matrixOf(Json::Value& value)
{
    Matrix4 matrix;
    for (unsigned char i = 0; i < 16; ++i) {
        matrix[i] = floatOf(value[static_cast<Json::ArrayIndex>(i)]);
    }
    return matrix;
}

std::vector<int> nodesOf(Json::Value& value)
{
    std::vector<int> nodes;
    Json::ArrayIndex const count = value.size();
    for (Json::ArrayIndex i = 0; i < count; ++i) {
        nodes.push_back(value[i].asInt());
    }
    return nodes;
}

/// The number at the start of a key, 0 without one, held to the range of int.
int nodeOf(std::string const& key)
{
    long const number = std::strtol(key.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(number, INT_MIN, INT_MAX));
}

FeedViewport viewportOf(Json::Value& value)
{
    Vector3 const eye = vectorOf(value["eye"]);
    Vector3 const target = vectorOf(value["target"]);
    Vector3 const up = vectorOf(value["up"]);
    return FeedViewport(eye, target, up, value["zoom"].asDouble());
}

FeedObjects objectsOf(Json::Value& value)
{
    FeedObjects objects;
    Json::Value& colored = value["colored"];
    for (Json::ArrayIndex i = 0; i < colored.size(); ++i) {
        objects.colored.push_back(vectorOf(colored[i]));
    }
    objects.transparent = nodesOf(value["transparent"]);
    objects.hidden = nodesOf(value["hidden"]);
    // Members come in the byte order of their keys; of two keys with one number the first counts.
    Json::Value& colors = value["nodecolor"];
    for (auto member = colors.begin(); member != colors.end(); ++member) {
        objects.nodecolor.emplace(nodeOf(member.name()), member->asInt());
    }
    Json::Value& transforms = value["nodetransform"];
    for (auto member = transforms.begin(); member != transforms.end(); ++member) {
        objects.nodetransform.emplace(nodeOf(member.name()), matrixOf(*member));
    }
    return objects;
}

Feed recordOf(Json::Value& document)
{
    Feed feed;
    Json::Value& author = document["author"];
    // Braces read the members in this order: of two broken ones the first is told.
    feed.author = FeedAuthor{textOf(author["id"]), textOf(author["name"]), textOf(author["email"]),
                             author["canDelete"].asBool(), author["canEdit"].asBool()};
    Json::Value& file = document["file"];
    feed.file = FeedFile{textOf(file["id"]), textOf(file["name"])};
    Json::Value& action = document["action"];
    feed.action = FeedAction{textOf(action["type"]), textOf(action["value"])};

    Json::Value& comment = document["commentcontent"];
    feed.comment.viewport = viewportOf(comment["viewport"]);
    feed.comment.objects = objectsOf(comment["objects"]);
    feed.comment.id = textOf(comment["id"]);
    feed.comment.commentType = textOf(comment["commentType"]);
    feed.comment.content = textOf(comment["content"]);
    feed.comment.publishedTime = textOf(comment["publishedTime"]);
    feed.comment.updatedTime = textOf(comment["updatedTime"]);

    feed.source = textOf(document["source"]);
    feed.thumbnail = textOf(document["thumbnail"]);
    return feed;
}

} // namespace

std::vector<Feed> FeedReader::read(std::wstring const& response) const
{
    std::vector<Feed> feeds;
    Json::Value root;
    if (!parseJson(orvtext::toUtf8(response), root) || root.size() == 0) {
        return feeds;
    }
    for (Json::ArrayIndex i = 0; i < root.size(); ++i) {
        Json::Value document;
        if (!parseJson(Utf8Text(root[i]["Content"]).view(), document)) {
            continue;
        }
        Feed feed = recordOf(document);
        if (feed.thumbnail.empty()) {
            feed.thumbnail = textOf(root[i]["Thumbnail"]);
        }
        feeds.push_back(std::move(feed));
    }
    return feeds;
}
