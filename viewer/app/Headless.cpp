#include "viewer/app/Headless.h"

#include "platform/text/Text.h"
#include "viewer/app/Exporting.h"
#include "viewer/app/VirtualDisplay.h"
#include "viewer/commands/ViewCommands.h"
#include "viewer/import/ModelImporter.h"
#include "viewer/scene/SceneDisplay.h"

#include <QImage>

#include <iostream>
#include <vector>

namespace orvviewer
{

namespace
{

constexpr int pictureWidth = 1280;
constexpr int pictureHeight = 960;

void complain(std::wstring const& sentence)
{
    std::cerr << "orvanta: " << orvtext::toUtf8(sentence) << std::endl;
}

bool drawPicture(std::shared_ptr<orv::IDocument> const& document, std::wstring const& path)
{
    VirtualDisplay ownDisplay;
    std::wstring error;
    if (qEnvironmentVariableIsEmpty("DISPLAY") && !ownDisplay.start(error)) {
        complain(error);
        return false;
    }
    auto const display = SceneDisplay::create(nullptr, error);
    if (!display) {
        complain(error);
        return false;
    }
    setFirstView(document, static_cast<double>(pictureWidth) / pictureHeight);
    display->setDocument(document);
    std::vector<unsigned char> pixels(std::size_t{3} * pictureWidth * pictureHeight);
    if (!display->drawFrame(pictureWidth, pictureHeight, false, pixels.data())) {
        complain(L"The picture can't be drawn on this display. Check the graphics driver.");
        return false;
    }
    QImage const picture(pixels.data(), pictureWidth, pictureHeight, 3 * pictureWidth, QImage::Format_RGB888);
    if (!picture.save(QString::fromStdWString(path))) {
        complain(L"The picture \"" + path + L"\" can't be written. Check the folder and that it ends in .png or .jpg.");
        return false;
    }
    return true;
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
    for (auto const& path : line.exports) {
        auto const written = exportDocument(result.document, path, nullptr);
        if (written.status != 0) {
            complain(written.message);
            isDone = false;
        }
    }
    if (!line.screenshot.empty() && !drawPicture(result.document, line.screenshot)) {
        isDone = false;
    }
    return isDone ? 0 : 1;
}

} // namespace orvviewer
