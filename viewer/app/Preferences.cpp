#include "viewer/app/Preferences.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Runtime.h"

#include <QSettings>
#include <QString>

namespace orvviewer
{

namespace
{

QString fileIn(std::wstring const& folder)
{
    return QString::fromStdWString(orv::FileUtils::join(folder, L"viewer.ini"));
}

} // namespace

ViewerPreferences ViewerPreferences::load()
{
    // Who only looks makes no folder: `--help` leaves nothing behind.
    QSettings const file(fileIn(orvhost::settings().dataDirectory), QSettings::IniFormat);
    ViewerPreferences result;
    result.showAxisCross = file.value("view/axisCross", result.showAxisCross).toBool();
    result.showViewCube = file.value("view/viewCube", result.showViewCube).toBool();
    result.startInPerspective = file.value("view/perspective", result.startInPerspective).toBool();
    result.showTree = file.value("window/tree", result.showTree).toBool();
    result.language = file.value("window/language").toString().toStdWString();
    return result;
}

void ViewerPreferences::save() const
{
    std::wstring folder;
    if (orv::FileUtils::getAppDataPath(folder)) {
        QSettings file(fileIn(folder), QSettings::IniFormat);
        file.setValue("view/axisCross", showAxisCross);
        file.setValue("view/viewCube", showViewCube);
        file.setValue("view/perspective", startInPerspective);
        file.setValue("window/tree", showTree);
        file.setValue("window/language", QString::fromStdWString(language));
    }
}

} // namespace orvviewer
