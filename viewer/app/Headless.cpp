#include "viewer/app/Headless.h"

#include "platform/text/Text.h"
#include "viewer/app/Exporting.h"
#include "viewer/app/FrameRenderer.h"
#include "viewer/app/Language.h"
#include "viewer/app/VirtualDisplay.h"
#include "viewer/commands/ViewCommands.h"
#include "viewer/import/ModelImporter.h"
#include "viewer/scene/SceneDisplay.h"

#include <QImage>

#include <iostream>
#include <memory>
#include <vector>

namespace orvviewer
{

namespace
{

constexpr int widthInPixels = 1280;
constexpr int heightInPixels = 960;

void complain(std::wstring const& sentence)
{
    std::cerr << "orvanta: " << orvtext::toUtf8(localizedSentence(sentence)) << std::endl;
}

/// Draws the model off the screen for as long as this lives: pictures, and the posters of exporters.
class Drawing
{
public:
    ~Drawing()
    {
        if (display) {
            orvhost::setFrameRenderer(earlier);
        }
    }
    Drawing() = default;
    Drawing(Drawing const&) = delete;
    Drawing& operator=(Drawing const&) = delete;

    /// False with a sentence where this machine can't draw.
    bool start(std::shared_ptr<orv::IDocument> const& document, std::wstring& error)
    {
        if (display) {
            return true;
        }
        if (qEnvironmentVariableIsEmpty("DISPLAY") && !ownDisplay.start(error)) {
            return false;
        }
        display = SceneDisplay::create(nullptr, error);
        if (!display) {
            return false;
        }
        display->setDocument(document);
        earlier = orvhost::setFrameRenderer(std::make_shared<FrameRenderer>(display));
        return true;
    }

    VirtualDisplay ownDisplay;
    std::shared_ptr<SceneDisplay> display;

private:
    std::shared_ptr<orvhost::IFrameRenderer> earlier;
};

bool drawPicture(Drawing& drawing, std::shared_ptr<orv::IDocument> const& document, std::wstring const& path)
{
    std::wstring error;
    if (!drawing.start(document, error)) {
        complain(error);
        return false;
    }
    std::vector<unsigned char> pixels(std::size_t{3} * widthInPixels * heightInPixels);
    if (!drawing.display->drawFrame(widthInPixels, heightInPixels, false, pixels.data())) {
        complain(L"The picture can't be drawn on this display. Check the graphics driver.");
        return false;
    }
    QImage const picture(pixels.data(), widthInPixels, heightInPixels, 3 * widthInPixels, QImage::Format_RGB888);
    if (!picture.save(QString::fromStdWString(path))) {
        complain(L"The picture \"" + path + L"\" can't be written. Check the folder and that it ends in .png or .jpg.");
        return false;
    }
    return true;
}

/// The one format that shows the current view.
bool showsTheView(std::wstring const& path)
{
    return QString::fromStdWString(path).endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
}

} // namespace

int runHeadless(CommandLine const& line)
{
    ImportProgress progress;
    auto const result = importModel(line.file, progress);
    if (!result.document) {
        complain(result.error);
        return 1;
    }
    bool isDone = true;
    Drawing drawing;
    setFirstView(result.document, static_cast<double>(widthInPixels) / heightInPixels);
    for (auto const& path : line.exports) {
        std::wstring withoutPicture; // an export that could show one does without it
        if (showsTheView(path) && !drawing.start(result.document, withoutPicture)) {
            complain(withoutPicture);
        }
        auto const written = exportDocument(result.document, path, nullptr);
        if (written.status != 0) {
            complain(written.message);
            isDone = false;
        }
    }
    if (!line.screenshot.empty() && !drawPicture(drawing, result.document, line.screenshot)) {
        isDone = false;
    }
    return isDone ? 0 : 1;
}

} // namespace orvviewer
