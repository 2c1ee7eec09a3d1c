#include "DialogTemplate.h"

#include "winstyles.h"

namespace orvplatform
{
namespace
{
// A text, or 0xFFFF and a number.
std::wstring textOrNumber(ByteReader& reader, Bytes bytes, std::uint16_t& number)
{
    const std::size_t at = reader.position();
    number = 0;
    if (bytes.size() - at >= 2 && bytes[at] == 0xFF && bytes[at + 1] == 0xFF) {
        reader.u16();
        number = reader.u16();
        return {};
    }
    return reader.text();
}

const wchar_t* systemClass(std::uint16_t number)
{
    switch (number) {
    case 0x80:
        return L"Button";
    case 0x81:
        return L"Edit";
    case 0x82:
        return L"Static";
    case 0x83:
        return L"ListBox";
    case 0x84:
        return L"ScrollBar";
    case 0x85:
        return L"ComboBox";
    default:
        return L"";
    }
}

DialogItem readItem(ByteReader& reader, Bytes bytes, bool extended)
{
    DialogItem item;
    reader.align(4);
    if (extended)
        reader.u32(); // help id
    (extended ? item.exStyle : item.style) = reader.u32();
    (extended ? item.style : item.exStyle) = reader.u32();
    item.x = reader.i16();
    item.y = reader.i16();
    item.width = reader.i16();
    item.height = reader.i16();
    item.id = extended ? static_cast<int>(reader.u32()) : reader.i16();
    if (item.id == 0xFFFF) // the id -1 of a control without one, as 16 bits hold it
        item.id = -1;
    std::uint16_t number = 0;
    item.className = textOrNumber(reader, bytes, number);
    if (number)
        item.className = systemClass(number);
    item.text = textOrNumber(reader, bytes, item.resource);
    std::size_t extra = reader.u16();
    if (!extended && extra >= 2)
        extra -= 2; // the classic length counts itself
    item.creationData = reader.take(extra);
    return item;
}
} // namespace

std::optional<DialogTemplate> readDialogTemplate(Bytes bytes)
{
    ByteReader reader(bytes);
    DialogTemplate result;
    const bool extended = bytes.size() >= 4 && bytes[0] == 1 && bytes[1] == 0 && bytes[2] == 0xFF && bytes[3] == 0xFF;
    if (extended) {
        reader.take(8); // version, signature, help id
        result.exStyle = reader.u32();
        result.style = reader.u32();
    } else {
        result.style = reader.u32();
        result.exStyle = reader.u32();
    }
    const std::size_t count = reader.u16();
    result.x = reader.i16();
    result.y = reader.i16();
    result.width = reader.i16();
    result.height = reader.i16();
    std::uint16_t number = 0;
    textOrNumber(reader, bytes, number); // menu
    textOrNumber(reader, bytes, number); // window class
    result.caption = reader.text();
    if (result.style & DS_SETFONT) {
        result.points = reader.u16();
        if (extended) {
            result.weight = reader.u16();
            result.italic = reader.u8() != 0;
            reader.u8(); // character set
        }
        result.face = reader.text();
    }
    for (std::size_t i = 0; i < count && reader.ok(); ++i)
        result.items.push_back(readItem(reader, bytes, extended));
    if (!reader.ok())
        return std::nullopt;
    return result;
}
} // namespace orvplatform
