#include "viewer/import/FileKind.h"

#include "host/orvexp/NativeFormat.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <cwctype>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace orvviewer
{

namespace
{

constexpr std::streamoff headLength = 8192;
constexpr std::streamoff tailLength = 4096;

struct Extension {
    wchar_t const* name;
    FileKind kind;
};
constexpr std::array<Extension, 12> extensions{{{L"step", FileKind::step},
                                                {L"stp", FileKind::step},
                                                {L"p21", FileKind::step},
                                                {L"iges", FileKind::iges},
                                                {L"igs", FileKind::iges},
                                                {L"brep", FileKind::brep},
                                                {L"brp", FileKind::brep},
                                                {L"stl", FileKind::stl},
                                                {L"obj", FileKind::obj},
                                                {L"gltf", FileKind::gltf},
                                                {L"glb", FileKind::gltf},
                                                {L"orvanta", FileKind::native}}};

struct Ends {
    std::string head;
    std::string tail;
    std::uintmax_t size = 0;
};

bool contains(std::string const& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    auto const first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::uint32_t littleEndian(std::string const& bytes, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[offset + i])) << (8 * i);
    }
    return value;
}

enum class Verdict { good, foreign, cutOff };

Verdict judgeStep(Ends const& ends)
{
    if (!contains(ends.head, "ISO-10303-21")) {
        return Verdict::foreign;
    }
    return contains(ends.tail, "END-ISO-10303-21") ? Verdict::good : Verdict::cutOff;
}

Verdict judgeIges(Ends const& ends)
{
    // Fixed lines of 80 characters with the section's letter in column 73; the last one is the terminate section "T".
    auto const firstLine = ends.head.substr(0, ends.head.find_first_of("\r\n"));
    if (firstLine.size() < 73 || std::string_view("SFBC").find(firstLine[72]) == std::string_view::npos) {
        return Verdict::foreign;
    }
    auto const lastEnd = ends.tail.find_last_not_of("\r\n \t\x1a");
    if (lastEnd == std::string::npos) {
        return Verdict::cutOff;
    }
    auto const lineStart = ends.tail.find_last_of("\r\n", lastEnd);
    auto const lastLine = ends.tail.substr(lineStart == std::string::npos ? 0 : lineStart + 1);
    return lastLine.size() >= 73 && lastLine[72] == 'T' ? Verdict::good : Verdict::cutOff;
}

Verdict judgeBrep(Ends const& ends)
{
    return contains(ends.head, "CASCADE Topology") || contains(ends.head, "DBRep_DrawableShape") ? Verdict::good
                                                                                                 : Verdict::foreign;
}

Verdict judgeStl(Ends const& ends)
{
    // A binary file counts its triangles, 50 bytes each, behind a header of 80 bytes that may well begin with "solid".
    if (ends.head.size() >= 84 && ends.size == 84 + static_cast<std::uintmax_t>(littleEndian(ends.head, 80)) * 50) {
        return Verdict::good;
    }
    if (withoutLeadingBlanks(ends.head).starts_with("solid") && contains(ends.head, "facet")) {
        return contains(ends.tail, "endsolid") ? Verdict::good : Verdict::cutOff;
    }
    auto const printable = std::all_of(ends.head.begin(), ends.head.begin() + std::min<long>(80, ends.head.size()),
                                       [](unsigned char c) { return c == 0 || (c >= 9 && c < 127); });
    return printable && ends.head.size() >= 84 ? Verdict::cutOff : Verdict::foreign;
}

Verdict judgeObj(Ends const& ends)
{
    if (ends.head.find('\0') != std::string::npos) {
        return Verdict::foreign;
    }
    bool const hasVertex = ends.head.starts_with("v ") || contains(ends.head, "\nv ");
    return hasVertex || ends.head.starts_with("#") || contains(ends.head, "mtllib") ? Verdict::good : Verdict::foreign;
}

Verdict judgeGltf(Ends const& ends)
{
    if (ends.head.starts_with("glTF") && ends.head.size() >= 12) {
        return littleEndian(ends.head, 8) <= ends.size ? Verdict::good : Verdict::cutOff;
    }
    if (!withoutLeadingBlanks(ends.head).starts_with("{")) {
        return Verdict::foreign;
    }
    auto const last = ends.tail.find_last_not_of(" \t\r\n");
    return last != std::string::npos && ends.tail[last] == '}' ? Verdict::good : Verdict::cutOff;
}

Verdict judgeNative(Ends const& ends)
{
    namespace native = orvexp::native;
    if (!ends.head.starts_with(native::beginning)) {
        return Verdict::foreign;
    }
    auto const seal = ends.tail.size() - std::min(ends.tail.size(), native::sealSize);
    return ends.tail.compare(seal, native::sealMark.size(), native::sealMark) == 0 ? Verdict::good : Verdict::cutOff;
}

Verdict judge(FileKind kind, Ends const& ends)
{
    switch (kind) {
    case FileKind::step:
        return judgeStep(ends);
    case FileKind::iges:
        return judgeIges(ends);
    case FileKind::brep:
        return judgeBrep(ends);
    case FileKind::stl:
        return judgeStl(ends);
    case FileKind::obj:
        return judgeObj(ends);
    case FileKind::gltf:
        return judgeGltf(ends);
    case FileKind::native:
        return judgeNative(ends);
    case FileKind::unknown:
        break;
    }
    return Verdict::foreign;
}

bool readEnds(std::filesystem::path const& file, Ends& ends)
{
    std::ifstream in(file, std::ios::binary);
    std::error_code failure;
    ends.size = std::filesystem::file_size(file, failure);
    if (!in || failure) {
        return false;
    }
    auto const size = static_cast<std::streamoff>(ends.size);
    ends.head.resize(static_cast<std::size_t>(std::min(size, headLength)));
    in.read(ends.head.data(), static_cast<std::streamsize>(ends.head.size()));
    ends.tail.resize(static_cast<std::size_t>(std::min(size, tailLength)));
    in.seekg(size - static_cast<std::streamoff>(ends.tail.size()));
    in.read(ends.tail.data(), static_cast<std::streamsize>(ends.tail.size()));
    return static_cast<bool>(in);
}

} // namespace

FileKind kindOfExtension(std::wstring const& path)
{
    auto text = orvtext::fromUtf8(orvhost::nativePath(path).extension().string());
    std::transform(text.begin(), text.end(), text.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))); });
    for (auto const& extension : extensions) {
        if (text == std::wstring(L".") + extension.name) {
            return extension.kind;
        }
    }
    return FileKind::unknown;
}

FileCheck checkFile(std::wstring const& path)
{
    auto const file = orvhost::nativePath(path);
    auto const name = L"\"" + orvtext::fromUtf8(file.filename().string()) + L"\"";
    std::error_code failure;
    auto const status = std::filesystem::status(file, failure);
    if (!std::filesystem::exists(status)) {
        return {FileKind::unknown, name + L" doesn't exist. Check the path or choose another file."};
    }
    if (std::filesystem::is_directory(status)) {
        return {FileKind::unknown, name + L" is a folder. Choose a model file in it."};
    }
    auto const kind = kindOfExtension(path);
    if (kind == FileKind::unknown) {
        return {kind,
                name + L" is of a type that can't be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files."};
    }
    Ends ends;
    if (!readEnds(file, ends)) {
        return {kind, name + L" can't be read. Check that you may read it and that it isn't in use."};
    }
    if (ends.size == 0) {
        return {kind, name + L" is empty. Export the model again and open the new file."};
    }
    switch (judge(kind, ends)) {
    case Verdict::good:
        return {kind, {}};
    case Verdict::cutOff:
        return {kind, name + L" ends too early: a part of it is missing. Copy or export the file again."};
    case Verdict::foreign:
        break;
    }
    return {kind, name + L" isn't what its ending says. Check the file, or export the model again."};
}

std::vector<std::wstring> const& readableExtensions()
{
    static std::vector<std::wstring> const names = [] {
        std::vector<std::wstring> list;
        for (auto const& extension : extensions) {
            list.emplace_back(extension.name);
        }
        return list;
    }();
    return names;
}

} // namespace orvviewer
