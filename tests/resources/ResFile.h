#pragma once
// Reader of compiled resource files (.res), for tests alone: it shares no code with the one that the product reads its
// resources with, so that the two check each other. Throws std::runtime_error on anything malformed.

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace restest
{

using Bytes = std::vector<unsigned char>;

// A resource's type or name, a control's class, a control's text: a number or a text.
using Name = std::variant<unsigned, std::u16string>;

struct Resource {
    Name type;
    Name name;
    unsigned language = 0;
    Bytes data;
};

// Numbers of the predefined resource types.
inline constexpr unsigned typeIcon = 3;
inline constexpr unsigned typeDialog = 5;
inline constexpr unsigned typeString = 6;
inline constexpr unsigned typeIconGroup = 14;
inline constexpr unsigned typeManifest = 24;

// Positions and sizes are in dialog units.
struct Control {
    unsigned id = 0; // 0xFFFFFFFF for a control without an id
    std::uint32_t style = 0;
    std::uint32_t extendedStyle = 0;
    int x = 0, y = 0, width = 0, height = 0;
    Name className; // a number for the six basic classes
    Name text;
    Bytes creationData;
};

struct Dialog {
    std::uint32_t style = 0;
    int width = 0, height = 0;
    std::u16string title;
    unsigned pointSize = 0;
    std::u16string typeface;
    std::vector<Control> controls;
};

struct IconEntry {
    unsigned width = 0, height = 0, bitsPerPixel = 0;
    std::uint32_t size = 0; // bytes
    unsigned id = 0;        // of the icon resource that holds the picture
};

Bytes readFile(const std::filesystem::path& path);

std::vector<Resource> readResFile(const Bytes& file);
Dialog readDialog(const Bytes& data);
std::vector<IconEntry> readIconGroup(const Bytes& data);

// Strings of one language by id; absent and empty are the same in the format.
std::map<unsigned, std::u16string> stringsOf(const std::vector<Resource>& resources, unsigned language);

// Null if there is no such resource in exactly this language.
const Resource* find(const std::vector<Resource>& resources, const Name& type, unsigned id, unsigned language);

std::string utf8(const std::u16string& text);
std::u16string utf16(const std::string& text);

} // namespace restest
