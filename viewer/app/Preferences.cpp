#include "viewer/app/Preferences.h"

#include "host/orv/FileUtils.h"

#include <QSettings>

#include <optional>

namespace orvviewer
{

namespace
{

std::optional<QString> settingsPath()
{
    std::wstring folder;
    if (!orv::FileUtils::getAppDataPath(folder)) {
        return std::nullopt;
    }
    return QString::fromStdWString(orv::FileUtils::join(folder, L"viewer.ini"));
}

} // namespace

ViewerPreferences ViewerPreferences::load()
{
    ViewerPreferences result;
    if (auto const path = settingsPath()) {
        QSettings const file(*path, QSettings::IniFormat);
        result.showAxisCross = file.value("view/axisCross", result.showAxisCross).toBool();
        result.showViewCube = file.value("view/viewCube", result.showViewCube).toBool();
        result.startInPerspective = file.value("view/perspective", result.startInPerspective).toBool();
        result.showTree = file.value("window/tree", result.showTree).toBool();
        result.language = file.value("window/language").toString().toStdWString();
    }
    return result;
}

void ViewerPreferences::save() const
{
    if (auto const path = settingsPath()) {
        QSettings file(*path, QSettings::IniFormat);
        file.setValue("view/axisCross", showAxisCross);
        file.setValue("view/viewCube", showViewCube);
        file.setValue("view/perspective", startInPerspective);
        file.setValue("window/tree", showTree);
        file.setValue("window/language", QString::fromStdWString(language));
    }
}

} // namespace orvviewer
