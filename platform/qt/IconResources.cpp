// Icons and pictures out of the resources of modules.
#include "platform/qt/Gdi.h"
#include "platform/windows/ByteReader.h"
#include "platform/windows/Module.h"
#include "winuser.h"

#include <map>
#include <string>
#include <utility>

using orvplatform::ByteReader;
using orvplatform::Bytes;

namespace
{
// One line of an icon group (GRPICONDIRENTRY).
struct GroupLine {
    Bytes raw; // the twelve bytes that the line shares with a line of an .ico file
    int width = 0;
    int bits = 0;
    std::uint16_t id = 0;
};

std::vector<GroupLine> readGroup(Bytes bytes)
{
    ByteReader reader(bytes);
    reader.take(4); // reserved, type
    std::vector<GroupLine> lines(reader.u16());
    for (GroupLine& line : lines) {
        line.raw = reader.take(12);
        line.id = reader.u16();
        if (!reader.ok())
            return {};
        line.width = line.raw[0] ? line.raw[0] : 256;
        line.bits = line.raw[6] | line.raw[7] << 8;
    }
    return lines;
}

// The line next to the wanted width: the same, else the next larger, else the largest; of equals the one of more
// colours.
const GroupLine* bestLine(const std::vector<GroupLine>& lines, int width)
{
    const GroupLine* best = nullptr;
    const auto cost = [width](const GroupLine& line) {
        return line.width >= width ? line.width - width : 1000 + (width - line.width);
    };
    for (const GroupLine& line : lines)
        if (!best || cost(line) < cost(*best) || (cost(line) == cost(*best) && line.bits > best->bits))
            best = &line;
    return best;
}

// An .ico file of one picture, the form in which the decoder takes icons.
QByteArray iconFile(const GroupLine& line, Bytes picture)
{
    QByteArray file("\0\0\1\0\1\0", 6);
    file.append(reinterpret_cast<const char*>(line.raw.data()), 12);
    file.append("\x16\0\0\0", 4); // where the picture begins
    file.append(reinterpret_cast<const char*>(picture.data()), static_cast<qsizetype>(picture.size()));
    return file;
}

QImage loadIcon(HINSTANCE module, LPCWSTR name, int width)
{
    const auto* group = orvplatform::findResource(module, RT_GROUP_ICON, name, 0);
    if (!group)
        return {};
    const std::vector<GroupLine> lines = readGroup(group->data);
    const GroupLine* line = bestLine(lines, width);
    const auto* picture =
        line ? orvplatform::findResource(module, RT_ICON, MAKEINTRESOURCEW(line->id), group->language) : nullptr;
    if (!picture)
        return {};
    const bool png = picture->data.size() > 4 && picture->data[0] == 0x89 && picture->data[1] == 'P';
    QImage image = orvplatform::decodePicture(png ? QByteArray(reinterpret_cast<const char*>(picture->data.data()),
                                                               static_cast<qsizetype>(picture->data.size()))
                                                  : iconFile(*line, picture->data));
    if (!image.isNull() && image.width() != width)
        image = image.scaled(width, width, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}
} // namespace

HANDLE LoadImageW(HINSTANCE module, LPCWSTR name, UINT type, int width, int, UINT)
{
    if (type != IMAGE_ICON || !name)
        return nullptr;
    const QImage image = loadIcon(module, name, width > 0 ? width : GetSystemMetrics(SM_CXICON));
    return image.isNull() ? nullptr : orvplatform::makeIcon(image);
}

HICON LoadIconW(HINSTANCE module, LPCWSTR name)
{
    // Shared icons are the system's: nobody destroys them, and they outlive their module.
    static auto& made = *new std::map<std::pair<std::string, std::wstring>, HICON>;
    const auto* group = name ? orvplatform::findResource(module, RT_GROUP_ICON, name, 0) : nullptr;
    if (!group)
        return nullptr;
    const std::string& file = (module ? module : GetModuleHandleW(nullptr))->file;
    HICON& icon = made[{file, std::to_wstring(group->name.number) + group->name.text}];
    if (!icon)
        icon = static_cast<HICON>(LoadImageW(module, name, IMAGE_ICON, 0, 0, LR_DEFAULTSIZE));
    return icon;
}
