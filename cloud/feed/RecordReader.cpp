#include "cloud/feed/RecordReader.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace orvcloud
{
namespace
{
/// Clients read with JsonCpp's own conversions and catch nothing, so the same conversions are made here.
class Reading
{
public:
    explicit Reading(Json::Value& whole) : record(whole) {}

    void readAll()
    {
        readTexts(record["author"], {"id", "name", "email"});
        (void)at(record["author"], "canEdit").asBool();
        (void)at(record["author"], "canDelete").asBool();
        readTexts(record["file"], {"id", "name"});
        readTexts(record["action"], {"type", "value"});
        readTexts(record, {"source", "thumbnail"});
        Json::Value& comment = at(record, "commentcontent");
        readTexts(comment, {"id", "commentType", "content", "publishedTime", "updatedTime"});
        readViewport(at(comment, "viewport"));
        readObjects(at(comment, "objects"));
    }

private:
    static Json::Value& at(Json::Value& parent, const char* member) { return parent[member]; }

    static void readTexts(Json::Value& parent, std::initializer_list<const char*> members)
    {
        for (const char* member : members)
            (void)at(parent, member).asString();
    }

    static void readFloats(Json::Value& array, Json::ArrayIndex count)
    {
        for (Json::ArrayIndex i = 0; i < count; ++i)
            if (std::abs(array[i].asDouble()) > static_cast<double>(std::numeric_limits<float>::max()))
                throw std::out_of_range("a coordinate is out of range");
    }

    static void readNodes(Json::Value& array)
    {
        for (Json::ArrayIndex i = 0; i < array.size(); ++i)
            (void)array[i].asInt();
    }

    static void readViewport(Json::Value& viewport)
    {
        for (const char* member : {"eye", "target", "up"})
            readFloats(at(viewport, member), 3);
        (void)at(viewport, "zoom").asDouble();
    }

    static void readObjects(Json::Value& objects)
    {
        Json::Value& colored = at(objects, "colored");
        for (Json::ArrayIndex i = 0; i < colored.size(); ++i)
            readFloats(colored[i], 3);
        readNodes(at(objects, "transparent"));
        readNodes(at(objects, "hidden"));
        for (Json::Value& color : at(objects, "nodecolor"))
            (void)color.asInt();
        for (Json::Value& matrix : at(objects, "nodetransform"))
            readFloats(matrix, 16);
    }

    Json::Value& record;
};
} // namespace

std::optional<std::string> unreadable(Json::Value& record)
{
    try {
        Reading(record).readAll();
    } catch (const std::exception& error) {
        return std::string("The comment holds a value that can't be read: ") + error.what() + ".";
    }
    return std::nullopt;
}

} // namespace orvcloud
