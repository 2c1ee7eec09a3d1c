#include "resources/ResFile.h"

#include <codecvt>
#include <fstream>
#include <iterator>
#include <locale>
#include <stdexcept>

namespace restest
{

namespace
{

class Cursor
{
public:
    explicit Cursor(const Bytes& bytes) : data(bytes) {}

    bool atEnd() const { return position >= data.size(); }
    std::size_t at() const { return position; }

    std::uint32_t number(int bytes)
    {
        const Bytes raw = take(static_cast<std::size_t>(bytes));
        std::uint32_t value = 0;
        for (int i = bytes; i-- > 0;) {
            value = value << 8 | raw[static_cast<std::size_t>(i)];
        }
        return value;
    }

    int coordinate() { return static_cast<std::int16_t>(number(2)); }

    Bytes take(std::size_t count)
    {
        if (count > data.size() - position) {
            throw std::runtime_error("resource data ends early");
        }
        const auto from = data.begin() + static_cast<std::ptrdiff_t>(position);
        position += count;
        return {from, from + static_cast<std::ptrdiff_t>(count)};
    }

    std::u16string text(std::size_t length)
    {
        std::u16string result;
        for (std::size_t i = 0; i < length; ++i) {
            result += static_cast<char16_t>(number(2));
        }
        return result;
    }

    std::u16string terminatedText()
    {
        std::u16string result;
        while (const auto unit = static_cast<char16_t>(number(2))) {
            result += unit;
        }
        return result;
    }

    // 0xFFFF and a number, or a text.
    Name name()
    {
        const std::size_t start = position;
        if (number(2) == 0xFFFF) {
            return number(2);
        }
        position = start;
        return terminatedText();
    }

    void align()
    {
        while (position % 4 != 0 && !atEnd()) {
            ++position;
        }
    }

private:
    const Bytes& data;
    std::size_t position = 0;
};

std::u16string textOf(const Name& name)
{
    return std::holds_alternative<std::u16string>(name) ? std::get<std::u16string>(name) : std::u16string();
}

} // namespace

Bytes readFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot open " + path.string());
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<Resource> readResFile(const Bytes& file)
{
    std::vector<Resource> resources;
    Cursor in(file);
    while (!in.atEnd()) {
        const std::size_t start = in.at();
        const std::uint32_t dataSize = in.number(4);
        const std::uint32_t headerSize = in.number(4);
        Resource resource;
        resource.type = in.name();
        resource.name = in.name();
        in.align();
        in.take(4 + 2); // data version, memory flags
        resource.language = in.number(2);
        in.take(4 + 4); // version, characteristics
        if (in.at() - start != headerSize) {
            throw std::runtime_error("resource header has another size than it says");
        }
        resource.data = in.take(dataSize);
        in.align();
        resources.push_back(std::move(resource));
    }
    return resources;
}

Dialog readDialog(const Bytes& data)
{
    Cursor in(data);
    if (in.number(2) != 1 || in.number(2) != 0xFFFF) {
        throw std::runtime_error("not an extended dialog template");
    }
    in.take(4 + 4); // help id, extended style
    Dialog dialog;
    dialog.style = in.number(4);
    const std::uint32_t count = in.number(2);
    in.take(2 + 2); // position
    dialog.width = in.coordinate();
    dialog.height = in.coordinate();
    in.name(); // menu
    in.name(); // window class
    dialog.title = textOf(in.name());
    dialog.pointSize = in.number(2);
    in.take(2 + 1 + 1); // weight, italic, character set
    dialog.typeface = in.terminatedText();
    for (std::uint32_t i = 0; i < count; ++i) {
        in.align();
        Control control;
        in.take(4); // help id
        control.extendedStyle = in.number(4);
        control.style = in.number(4);
        control.x = in.coordinate();
        control.y = in.coordinate();
        control.width = in.coordinate();
        control.height = in.coordinate();
        control.id = in.number(4);
        control.className = in.name();
        control.text = in.name();
        control.creationData = in.take(in.number(2));
        dialog.controls.push_back(std::move(control));
    }
    return dialog;
}

std::vector<IconEntry> readIconGroup(const Bytes& data)
{
    Cursor in(data);
    if (in.number(2) != 0 || in.number(2) != 1) {
        throw std::runtime_error("not an icon group");
    }
    std::vector<IconEntry> entries(in.number(2));
    for (IconEntry& entry : entries) {
        entry.width = in.number(1);
        entry.height = in.number(1);
        in.take(2 + 2); // palette, reserved, planes
        entry.bitsPerPixel = in.number(2);
        entry.size = in.number(4);
        entry.id = in.number(2);
    }
    return entries;
}

std::map<unsigned, std::u16string> stringsOf(const std::vector<Resource>& resources, unsigned language)
{
    std::map<unsigned, std::u16string> strings;
    for (const Resource& resource : resources) {
        if (resource.type != Name{typeString} || resource.language != language) {
            continue;
        }
        // Block n holds the strings 16 (n - 1) to 16 (n - 1) + 15.
        const unsigned first = (std::get<unsigned>(resource.name) - 1) * 16;
        Cursor in(resource.data);
        for (unsigned i = 0; i < 16; ++i) {
            const std::u16string text = in.text(in.number(2));
            if (!text.empty()) {
                strings[first + i] = text;
            }
        }
    }
    return strings;
}

const Resource* find(const std::vector<Resource>& resources, const Name& type, unsigned id, unsigned language)
{
    for (const Resource& resource : resources) {
        if (resource.type == type && resource.name == Name{id} && resource.language == language) {
            return &resource;
        }
    }
    return nullptr;
}

std::string utf8(const std::u16string& text)
{
    return std::wstring_convert<std::codecvt_utf8_utf16<char16_t>, char16_t>().to_bytes(text);
}

std::u16string utf16(const std::string& text)
{
    return std::wstring_convert<std::codecvt_utf8_utf16<char16_t>, char16_t>().from_bytes(text);
}

} // namespace restest
