#include "feed/ViewCapture.h"

#include "feed/SceneCapture.h"
#include "feed/Thumbnail.h"
#include "host/orv/FileUtils.h"
#include "host/orv/GUID.h"
#include "host/orvgl/ImageRenderer.h"
#include "host/orvglutils/ImageWriter.h"
#include "host/orvweb/Directories.h"
#include "platform/text/Text.h"
#include "service/ModelName.h"
#include "service/PluginText.h"

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <locale>
#include <sstream>
#include <utility>

namespace
{

/// Texts of the plug-in. They name values of a record and are the same in every language.
constexpr int sourceText = 205;
constexpr int commentTypeText = 206;
constexpr int actionTypeText = 207;
constexpr int actionValueText = 208;
constexpr int thumbnailPrefixText = 209;

constexpr unsigned int pictureSize = 256;
constexpr unsigned long pictureMask = 0xFF00FF;

/// Switches everything off that is drawn besides the model, for its own life.
class PlainView
{
public:
    explicit PlainView(std::shared_ptr<orvgl::SCRenderer> record) : renderer(std::move(record))
    {
        if (renderer) {
            noted = renderer->settings;
            renderer->settings.showAxisCross = false;
            renderer->settings.showViewCube = false;
            renderer->settings.showSelection = false;
        }
    }
    ~PlainView()
    {
        if (renderer) {
            renderer->settings = noted;
        }
    }
    PlainView(PlainView const&) = delete;
    PlainView& operator=(PlainView const&) = delete;

private:
    std::shared_ptr<orvgl::SCRenderer> renderer;
    orvgl::RendererSettings noted;
};

void writePicture(std::shared_ptr<orv::IDocument> const& document, SceneRecords const& records,
                  std::wstring const& imagePath)
{
    orvgl::ImageRenderer image(document, pictureSize, pictureSize, false);
    PlainView const plain(records.renderer);
    std::shared_ptr<unsigned char> const pixels = image.drawFrame();
    orvglutils::ImageWriter writer(pictureMask);
    writer.write(image.width(), image.height(), pixels.get(), imagePath.c_str(), false, true);
}

std::wstring currentTimeText()
{
    std::time_t const now = std::time(nullptr);
    return commentTimeText(*std::localtime(&now));
}

} // namespace

Feed captureView(std::shared_ptr<orv::IDocument> const& document, orvweb::UserInfo const& user,
                 std::wstring const& text, std::wstring const& fileId, std::wstring const& imagePath)
{
    SceneRecords records(document);
    writePicture(document, records, imagePath);
    std::wstring const time = currentTimeText();
    std::wstring const fileName = records.info ? modelName(records.info->file()) : std::wstring();

    std::wstring const actionType = pluginText(actionTypeText);
    std::wstring const actionValue = pluginText(actionValueText);
    std::wstring const identity = orv::GUID().toString();
    std::wstring const commentId = identity.substr(1, identity.size() - 2);
    std::wstring const commentType = pluginText(commentTypeText);
    std::wstring const source = pluginText(sourceText);
    std::wstring thumbnail = pluginText(thumbnailPrefixText);
    thumbnail += encodeFileBase64(imagePath);

    FeedViewport const viewport = captureViewport(records);
    FeedObjects objects = captureObjects(records);
    return Feed(FeedAuthor(user.userid, user.name, user.username, true, true), FeedFile(fileId, fileName),
                FeedComment(commentId, commentType, text, time, time, viewport, std::move(objects)),
                FeedAction(actionType, actionValue), source, thumbnail);
}

std::wstring thumbnailPath()
{
    return orv::FileUtils::join(orvweb::Directories::GetUserDirectoryDetails(L"Cloud", L""), L"image.jpeg");
}

std::wstring encodeFileBase64(std::wstring const& path)
{
    std::ifstream file(std::filesystem::path(orvtext::toUtf8(path)), std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return orvtext::widenBytes(encodeBase64(bytes.str()));
}

std::wstring commentTimeText(std::tm const& local, std::size_t room)
{
    std::wostringstream text;
    text.imbue(std::locale::classic());
    // The month stands in the minutes' place; the service's other clients show the same.
    text << std::put_time(&local, L"%b %d, %Y %H:%m %p");
    return text.str().size() < room ? text.str() : std::wstring();
}
