#include "viewer/app/RecentFiles.h"

#include "host/orv/FilePath.h"
#include "host/orv/FileUtils.h"
#include "host/orvsg/SCInfo.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <QBuffer>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace orvviewer
{

namespace
{

constexpr std::size_t listLimit = 1 << 20; ///< bytes

std::wstring listPath(std::wstring const& folder)
{
    return orv::FileUtils::join(folder, L"recent.txt");
}

} // namespace

std::wstring RecentFiles::folder()
{
    std::wstring root;
    if (!orv::FileUtils::getAppDataPath(root)) {
        return {};
    }
    auto const path = orv::FileUtils::join(orv::FileUtils::join(root, L"Orvanta"), L"RecentFile");
    return orvhost::makeDirectory(orvhost::nativePath(path)) ? path : std::wstring();
}

std::wstring RecentFiles::previewPath(std::wstring const& modelPath, bool isAssembly)
{
    auto const name = orv::FilePath(modelPath.c_str()).getFName();
    return orv::FileUtils::join(folder(), (isAssembly ? L"asm_" : L"part_") + name + L".bmp");
}

std::vector<std::wstring> RecentFiles::paths() const
{
    std::vector<std::wstring> result;
    std::istringstream lines(orvhost::readFile(orvhost::nativePath(listPath(folder())), listLimit));
    for (std::string line; std::getline(lines, line) && result.size() < limit;) {
        std::error_code failure;
        auto const path = orvtext::fromUtf8(line);
        if (!path.empty() && std::filesystem::exists(orvhost::nativePath(path), failure)) {
            result.push_back(path);
        }
    }
    return result;
}

void RecentFiles::add(std::wstring const& path)
{
    auto list = paths();
    std::erase(list, path);
    list.insert(list.begin(), path);
    list.resize(std::min<std::size_t>(list.size(), limit));
    std::string text;
    for (auto const& entry : list) {
        text += orvtext::toUtf8(entry) + "\n";
    }
    if (auto const where = folder(); !where.empty()) {
        orvhost::replaceFile(orvhost::nativePath(listPath(where)), text);
    }
}

void RecentFiles::savePreview(std::shared_ptr<orv::IDocument> const& document, QImage const& picture)
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    if (!info || picture.isNull() || folder().empty()) {
        return;
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (picture.save(&buffer, "BMP")) {
        auto const path = previewPath(info->file(), info->documentKind == orvsg::SCInfo::assembly);
        orvhost::replaceFile(orvhost::nativePath(path),
                             std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    }
}

QIcon RecentFiles::previewOf(std::wstring const& path) const
{
    for (bool const isAssembly : {true, false}) {
        QImage picture;
        if (picture.load(QString::fromStdWString(previewPath(path, isAssembly)), "BMP")) {
            return QIcon(QPixmap::fromImage(picture));
        }
    }
    return {};
}

} // namespace orvviewer
