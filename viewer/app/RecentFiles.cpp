#include "viewer/app/RecentFiles.h"

#include "host/orv/FilePath.h"
#include "host/orv/FileUtils.h"
#include "host/orvsg/SCInfo.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

namespace orvviewer
{

namespace
{

constexpr std::size_t listLimit = 1 << 20; ///< bytes
constexpr int largestPreview = 1024;       ///< pixels a side; ours are smaller
constexpr char assemblyMark[] = "assembly\t";
constexpr char partMark[] = "part\t";

bool isThere(std::wstring const& path)
{
    std::error_code failure;
    return std::filesystem::exists(orvhost::nativePath(path), failure);
}

QImage pictureIn(std::wstring const& path)
{
    QImageReader reader(QString::fromStdWString(path));
    reader.setDecideFormatFromContent(true); // the name says nothing, and earlier versions wrote another format
    bool const isKnown = reader.format() == "png" || reader.format() == "bmp";
    QSize const size = reader.size();
    bool const isSmall = size.isValid() && size.width() <= largestPreview && size.height() <= largestPreview;
    return isKnown && isSmall ? reader.read() : QImage();
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

std::wstring RecentFiles::listPath()
{
    return orv::FileUtils::join(folder(), L"recent.txt");
}

std::wstring RecentFiles::previewPath(std::wstring const& modelPath, Kind kind)
{
    auto const name = orv::FilePath(modelPath.c_str()).getFName();
    return orv::FileUtils::join(folder(), (kind == Kind::assembly ? L"asm_" : L"part_") + name + L".bmp");
}

RecentFiles::Entry RecentFiles::parsed(std::string const& line)
{
    for (auto const& [mark, kind] : {std::pair<std::string_view, Kind>{assemblyMark, Kind::assembly},
                                     std::pair<std::string_view, Kind>{partMark, Kind::part}}) {
        if (line.starts_with(mark)) {
            return {orvtext::fromUtf8(line.substr(mark.size())), kind};
        }
    }
    return {orvtext::fromUtf8(line), Kind::unknown};
}

std::string RecentFiles::line(Entry const& entry)
{
    std::string const mark = entry.kind == Kind::assembly ? assemblyMark : entry.kind == Kind::part ? partMark : "";
    return mark + orvtext::toUtf8(entry.path) + "\n";
}

bool RecentFiles::refresh() const
{
    auto const path = orvhost::nativePath(listPath());
    auto const current = orvhost::stampOf(path); // before the reading: what is written meanwhile is read the next time
    if (isKnown && current == stamp) {
        return false;
    }
    entries.clear();
    std::istringstream lines(orvhost::readFile(path, listLimit));
    for (std::string text; std::getline(lines, text) && entries.size() < limit;) {
        Entry entry = parsed(text);
        if (!entry.path.empty()) {
            entries.push_back(std::move(entry));
        }
    }
    stamp = current;
    isKnown = true;
    return true;
}

bool RecentFiles::isEmpty() const
{
    if (!isKnown) {
        refresh();
    }
    return entries.empty();
}

std::vector<std::wstring> RecentFiles::paths() const
{
    refresh();
    std::vector<std::wstring> result;
    for (auto const& entry : entries) {
        if (isThere(entry.path)) {
            result.push_back(entry.path);
        }
    }
    return result;
}

void RecentFiles::add(std::shared_ptr<orv::IDocument> const& document)
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    // A line end in a name would make two entries of it; such a model is opened but not listed.
    if (!info || info->file()[0] == L'\0' || std::wstring(info->file()).find(L'\n') != std::wstring::npos) {
        return;
    }
    refresh();
    Entry const added{info->file(), info->documentKind == orvsg::SCInfo::assembly ? Kind::assembly : Kind::part};
    std::erase_if(entries, [&](Entry const& each) { return each.path == added.path || !isThere(each.path); });
    entries.insert(entries.begin(), added);
    entries.resize(std::min<std::size_t>(entries.size(), limit));
    std::string text;
    for (auto const& entry : entries) {
        text += line(entry);
    }
    // Where it can't be written the list holds for this run alone.
    if (!folder().empty() && orvhost::replaceFile(orvhost::nativePath(listPath()), text)) {
        stamp = orvhost::stampOf(orvhost::nativePath(listPath()));
    }
}

void RecentFiles::savePreview(std::shared_ptr<orv::IDocument> const& document, QImage const& picture)
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    if (!info || info->file()[0] == L'\0' || folder().empty()) {
        return;
    }
    bool const isAssembly = info->documentKind == orvsg::SCInfo::assembly;
    auto const file = orvhost::nativePath(previewPath(info->file(), isAssembly ? Kind::assembly : Kind::part));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    bool const isWritten =
        !picture.isNull() && picture.save(&buffer, "PNG") &&
        orvhost::replaceFile(file, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (!isWritten) {
        // What is there shows another model of that name, or this one as it was: it must not be shown or pushed for it.
        std::error_code failure;
        std::filesystem::remove(file, failure);
    }
}

QIcon RecentFiles::previewOf(std::wstring const& path) const
{
    refresh();
    std::set<std::wstring> taken; // by models further up in the list
    for (auto const& entry : entries) {
        for (Kind const kind : {Kind::assembly, Kind::part}) {
            if (entry.kind != Kind::unknown && entry.kind != kind) {
                continue;
            }
            auto const preview = previewPath(entry.path, kind);
            bool const isOwn = taken.insert(preview).second;
            if (entry.path != path || !isOwn) {
                continue;
            }
            if (QImage const picture = pictureIn(preview); !picture.isNull()) {
                return QIcon(QPixmap::fromImage(picture));
            }
        }
        if (entry.path == path) {
            break;
        }
    }
    return {};
}

} // namespace orvviewer
