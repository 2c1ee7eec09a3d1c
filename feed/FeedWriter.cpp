#include "feed/FeedWriter.h"

#include "feed/JsonLine.h"
#include "service/ReplaceAll.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace
{

// Members stand in ascending byte order of their names, at every level.

void writeAction(JsonLine& line, FeedAction const& action)
{
    line.beginObject();
    line.member("type", action.type);
    line.member("value", action.value);
    line.endObject();
}

void writeAuthor(JsonLine& line, FeedAuthor const& author)
{
    line.beginObject();
    line.member("canDelete", author.canDelete);
    line.member("canEdit", author.canEdit);
    line.member("email", author.email);
    line.member("id", author.id);
    line.member("name", author.name);
    line.endObject();
}

void writeFile(JsonLine& line, FeedFile const& file)
{
    line.beginObject();
    line.member("id", file.id);
    line.member("name", file.name);
    line.endObject();
}

template <std::size_t N>
void writeNumbers(JsonLine& line, orvmath::Tuple<float, N> const& numbers)
{
    line.beginArray();
    for (unsigned char i = 0; i < N; ++i) {
        line.value(static_cast<double>(numbers[i]));
    }
    line.endArray();
}

void writeNodes(JsonLine& line, std::string_view name, std::vector<int> const& nodes)
{
    if (nodes.empty()) {
        return;
    }
    line.key(name);
    line.beginArray();
    for (int const node : nodes) {
        line.value(node);
    }
    line.endArray();
}

/// The text of a node as a key, without memory of its own: records have many.
class NodeKey
{
public:
    explicit NodeKey(int node)
        : length(static_cast<std::size_t>(std::to_chars(digits.data(), digits.data() + digits.size(), node).ptr -
                                          digits.data()))
    {
    }
    std::string_view text() const { return {digits.data(), length}; }

private:
    std::array<char, 12> digits{};
    std::size_t length;
};

/// Calls `write` for each node of the map in the order of the nodes' texts, in which 10 stands before 9.
template <class Value, class Write>
void forEachByText(std::map<int, Value> const& values, Write write)
{
    std::vector<std::pair<NodeKey, Value const*>> entries;
    entries.reserve(values.size());
    for (auto const& [node, value] : values) {
        entries.emplace_back(NodeKey(node), &value);
    }
    std::sort(entries.begin(), entries.end(),
              [](auto const& a, auto const& b) { return a.first.text() < b.first.text(); });
    for (auto const& [key, value] : entries) {
        write(key.text(), *value);
    }
}

void writeObjects(JsonLine& line, FeedObjects const& objects)
{
    line.beginObject();
    writeNodes(line, "hidden", objects.hidden);
    if (!objects.nodecolor.empty()) {
        line.key("nodecolor");
        line.beginObject();
        forEachByText(objects.nodecolor, [&line](std::string_view node, int color) { line.member(node, color); });
        line.endObject();
    }
    if (!objects.nodetransform.empty()) {
        line.key("nodetransform");
        line.beginObject();
        forEachByText(objects.nodetransform, [&line](std::string_view node, Matrix4 const& matrix) {
            line.key(node);
            writeNumbers(line, matrix);
        });
        line.endObject();
    }
    writeNodes(line, "transparent", objects.transparent);
    line.endObject();
}

void writeViewport(JsonLine& line, FeedViewport const& viewport)
{
    line.beginObject();
    line.key("eye");
    writeNumbers(line, viewport.eye);
    line.key("target");
    writeNumbers(line, viewport.target);
    line.key("up");
    writeNumbers(line, viewport.up);
    line.member("zoom", viewport.zoom);
    line.endObject();
}

void writeComment(JsonLine& line, FeedComment const& comment)
{
    FeedObjects const& objects = comment.objects;
    line.beginObject();
    line.member("commentType", comment.commentType);
    line.member("content", comment.content);
    line.member("id", comment.id);
    // A record without any node states has no such member; colours by position alone don't make one.
    if (!objects.hidden.empty() || !objects.nodecolor.empty() || !objects.nodetransform.empty() ||
        !objects.transparent.empty()) {
        line.key("objects");
        writeObjects(line, objects);
    }
    line.member("publishedTime", comment.publishedTime);
    line.member("updatedTime", comment.updatedTime);
    line.key("viewport");
    writeViewport(line, comment.viewport);
    line.endObject();
}

/// About how many characters the record takes.
std::size_t lengthOf(Feed const& feed)
{
    constexpr std::size_t names = 1024;
    constexpr std::size_t node = 8;
    constexpr std::size_t color = 20;
    constexpr std::size_t matrix = 16 * 21;
    FeedObjects const& objects = feed.comment.objects;
    return names + feed.thumbnail.size() + feed.comment.content.size() +
           node * (objects.hidden.size() + objects.transparent.size()) + color * objects.nodecolor.size() +
           matrix * objects.nodetransform.size();
}

} // namespace

std::wstring FeedWriter::write(Feed const& feed) const
{
    JsonLine line(lengthOf(feed));
    line.beginObject();
    line.key("action");
    writeAction(line, feed.action);
    line.key("author");
    writeAuthor(line, feed.author);
    line.key("commentcontent");
    writeComment(line, feed.comment);
    line.key("file");
    writeFile(line, feed.file);
    line.member("source", feed.source);
    line.member("thumbnail", feed.thumbnail);
    line.endObject();

    // Over the whole text, what users wrote included: that is how records stand at the service.
    return replaceAll(line.take(), L"null", L"[]");
}
