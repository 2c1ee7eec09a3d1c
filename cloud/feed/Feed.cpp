#include "cloud/feed/Feed.h"

#include "cloud/base/Secret.h"
#include "cloud/base/Text.h"

#include <array>
#include <utility>

namespace orvcloud
{
namespace
{
constexpr std::size_t largestAnswer = std::size_t{240} << 20;

struct Output {
    std::string_view value;
    std::string_view content;
};

constexpr std::array<Output, 6> outputs{{{"3ds", "3DS model: click to save it."},
                                         {"obj", "OBJ model: click to save it."},
                                         {"stl", "STL model: click to save it."},
                                         {"pdf", "3D PDF: click to save it."},
                                         {"csv", "Bill of materials (CSV): click to save it."},
                                         {"bompdf", "Bill of materials (PDF): click to save it."}}};
} // namespace

std::vector<FeedEntry> automaticEntries(std::string_view jobId, std::string_view fileName, std::int64_t now)
{
    // In the form of a person's entries, but in UTC: "Nov 20, 2026 08:25".
    const std::string time = jsonString(formattedTime(now, "%b %d, %Y %H:%M"));
    std::vector<FeedEntry> entries;
    for (auto output = outputs.rbegin(); output != outputs.rend(); ++output) {
        FeedEntry entry;
        entry.commentId = randomUuid();
        entry.content = "{\"action\":{\"type\":\"download\",\"value\":" + jsonString(output->value) +
                        "},\"author\":{\"canDelete\":false,\"canEdit\":false,\"email\":\"\",\"id\":\"orvanta-cloud\","
                        "\"name\":\"Orvanta Cloud\"},\"commentcontent\":{\"commentType\":\"auto\",\"content\":" +
                        jsonString(output->content) + ",\"id\":" + jsonString(entry.commentId) +
                        ",\"publishedTime\":" + time + ",\"updatedTime\":" + time +
                        "},\"file\":{\"id\":" + jsonString(jobId) + ",\"name\":" + jsonString(fileName) +
                        "},\"source\":\"web\",\"thumbnail\":\"\"}";
        entries.push_back(std::move(entry));
    }
    return entries;
}

bool FeedText::add(std::string_view record)
{
    const std::string content = jsonString(record);
    if (text.size() + content.size() > largestAnswer)
        return false;
    if (text.size() > 1)
        text += ',';
    // The picture stands inside the record; only a record without one would look for it out here.
    text.append("{\"Content\":").append(content).append(",\"Thumbnail\":\"\"}");
    return true;
}

std::string FeedText::finish()
{
    text += "]\n";
    return std::move(text);
}

} // namespace orvcloud
