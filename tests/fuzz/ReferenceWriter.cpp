#include "fuzz/Reference.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"
#include "service/ReplaceAll.h"

namespace orvfuzz
{

namespace
{

Json::Value textValue(std::wstring const& text)
{
    return Json::Value(orvtext::toUtf8(text));
}

Json::Value vectorValue(Vector3 const& vector)
{
    Json::Value value;
    for (unsigned char i = 0; i < 3; ++i) {
        value[static_cast<Json::ArrayIndex>(i)] = static_cast<double>(vector[i]);
    }
    return value;
}

Json::Value matrixValue(Matrix4 const& matrix)
{
    Json::Value value;
    for (unsigned char i = 0; i < 16; ++i) {
        value[static_cast<Json::ArrayIndex>(i)] = static_cast<double>(matrix[i]);
    }
    return value;
}

void addNodes(Json::Value& comment, char const* name, std::vector<int> const& nodes)
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        comment["objects"][name][static_cast<Json::ArrayIndex>(i)] = nodes[i];
    }
}

// Nothing creates "objects" by itself: a record without any node states has no such member.
void addObjects(Json::Value& comment, FeedObjects const& objects)
{
    addNodes(comment, "transparent", objects.transparent);
    addNodes(comment, "hidden", objects.hidden);
    for (auto const& [node, matrix] : objects.nodetransform) {
        comment["objects"]["nodetransform"][std::to_string(node)] = matrixValue(matrix);
    }
    for (auto const& [node, color] : objects.nodecolor) {
        comment["objects"]["nodecolor"][std::to_string(node)] = color;
    }
}

} // namespace

std::wstring referenceWrite(Feed const& feed)
{
    Json::Value root;
    Json::Value& author = root["author"];
    author["id"] = textValue(feed.author.id);
    author["name"] = textValue(feed.author.name);
    author["email"] = textValue(feed.author.email);
    author["canDelete"] = feed.author.canDelete;
    author["canEdit"] = feed.author.canEdit;

    root["file"]["id"] = textValue(feed.file.id);
    root["file"]["name"] = textValue(feed.file.name);

    Json::Value& comment = root["commentcontent"];
    comment["id"] = textValue(feed.comment.id);
    comment["commentType"] = textValue(feed.comment.commentType);
    comment["content"] = textValue(feed.comment.content);
    comment["publishedTime"] = textValue(feed.comment.publishedTime);
    comment["updatedTime"] = textValue(feed.comment.updatedTime);
    comment["viewport"]["eye"] = vectorValue(feed.comment.viewport.eye);
    comment["viewport"]["target"] = vectorValue(feed.comment.viewport.target);
    comment["viewport"]["up"] = vectorValue(feed.comment.viewport.up);
    comment["viewport"]["zoom"] = feed.comment.viewport.zoom;
    addObjects(comment, feed.comment.objects);

    root["action"]["type"] = textValue(feed.action.type);
    root["action"]["value"] = textValue(feed.action.value);
    root["source"] = textValue(feed.source);
    root["thumbnail"] = textValue(feed.thumbnail);

    // Over the whole text, what users wrote included: that is how records stand at the service.
    return orvtext::fromUtf8(replaceAll(writeJson(root), "null", "[]"));
}

} // namespace orvfuzz
