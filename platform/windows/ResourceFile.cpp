#include "ResourceFile.h"

#include "winbase.h"

#include <elf.h>

#include <algorithm>
#include <cstring>
#include <fstream>

namespace orvplatform
{
namespace
{
constexpr LANGID english = 0x0409;

ResourceName readName(ByteReader& reader, Bytes header)
{
    if (header.size() - reader.position() < 4)
        return {};
    if (header[reader.position()] == 0xFF && header[reader.position() + 1] == 0xFF) {
        reader.u16();
        return {reader.u16(), {}};
    }
    return {0, reader.text()};
}

// Reads `count` bytes at `offset`; false when the file has not so many.
bool readAt(std::istream& file, std::uint64_t offset, void* target, std::size_t count)
{
    file.clear();
    file.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(file.read(static_cast<char*>(target), static_cast<std::streamsize>(count)));
}

std::vector<unsigned char> resourceSection(std::istream& file, std::uint64_t fileSize)
{
    Elf64_Ehdr header{};
    if (!readAt(file, 0, &header, sizeof header) || header.e_ident[EI_CLASS] != ELFCLASS64 ||
        header.e_shentsize != sizeof(Elf64_Shdr) || header.e_shnum == 0 || header.e_shstrndx >= header.e_shnum)
        return {};
    std::vector<Elf64_Shdr> sections(header.e_shnum);
    if (!readAt(file, header.e_shoff, sections.data(), sections.size() * sizeof(Elf64_Shdr)))
        return {};
    const auto inside = [fileSize](const Elf64_Shdr& section) {
        return section.sh_offset <= fileSize && section.sh_size <= fileSize - section.sh_offset;
    };
    const Elf64_Shdr& nameSection = sections[header.e_shstrndx];
    if (!inside(nameSection))
        return {};
    std::string names(nameSection.sh_size, '\0');
    if (!readAt(file, nameSection.sh_offset, names.data(), names.size()))
        return {};
    for (const Elf64_Shdr& section : sections) {
        if (section.sh_name >= names.size() || std::strcmp(names.c_str() + section.sh_name, ".rsrc.orvanta") != 0)
            continue;
        std::vector<unsigned char> bytes(inside(section) ? section.sh_size : 0);
        return readAt(file, section.sh_offset, bytes.data(), bytes.size()) ? bytes : std::vector<unsigned char>();
    }
    return {};
}
} // namespace

ResourceName ResourceName::of(LPCWSTR idOrText)
{
    if (IS_INTRESOURCE(idOrText))
        return {static_cast<std::uint16_t>(reinterpret_cast<ULONG_PTR>(idOrText)), {}};
    if (idOrText[0] == L'#') // the documented other way to write a number
        return {static_cast<std::uint16_t>(std::wcstoul(idOrText + 1, nullptr, 10)), {}};
    return {0, idOrText};
}

bool ResourceName::operator==(const ResourceName& other) const
{
    return number == other.number && wcscasecmp(text.c_str(), other.text.c_str()) == 0;
}

ResourceFile::ResourceFile(std::vector<unsigned char> bytes) : storage(std::move(bytes))
{
    ByteReader reader{Bytes(storage)};
    while (reader.left() > 0) {
        const std::size_t start = reader.position();
        const std::uint32_t dataSize = reader.u32();
        const std::uint32_t headerSize = reader.u32();
        if (!reader.ok() || headerSize < 24 || headerSize - 8 > reader.left()) {
            damaged = true;
            return;
        }
        // Alignment counts from the entry's start, which lies on a boundary itself.
        const Bytes header = Bytes(storage).subspan(start, headerSize);
        reader.take(headerSize - 8);
        ByteReader fields(header);
        fields.take(8);
        ResourceEntry entry;
        entry.type = readName(fields, header);
        entry.name = readName(fields, header);
        fields.align(4);
        fields.u32(); // data version
        fields.u16(); // memory flags
        entry.language = fields.u16();
        entry.data = reader.take(dataSize);
        reader.align(4);
        if (!fields.ok() || !reader.ok()) {
            damaged = true;
            return;
        }
        if (entry.type.number != 0 || !entry.type.text.empty()) // the first entry of a file is an empty one
            list.push_back(std::move(entry));
    }
}

const ResourceEntry* ResourceFile::find(const ResourceName& type, const ResourceName& name, LANGID language) const
{
    const ResourceEntry* best = nullptr;
    int bestRank = 0;
    for (const ResourceEntry& entry : list) {
        const int rank = entry.language == language                                 ? 4
                         : PRIMARYLANGID(entry.language) == PRIMARYLANGID(language) ? 3
                         : entry.language == english                                ? 2
                                                                                    : 1;
        if (rank > bestRank && entry.name == name && entry.type == type) {
            best = &entry;
            bestRank = rank;
        }
    }
    return best;
}

const std::wstring* ResourceFile::string(UINT id, LANGID language) const
{
    const auto blockNumber = static_cast<std::uint16_t>(id / 16 + 1);
    const ResourceEntry* block = find(ResourceName::of(RT_STRING), {blockNumber, {}}, language);
    if (!block || id > 0xFFFF)
        return nullptr;
    const auto known = std::find_if(strings.begin(), strings.end(),
                                    [&](const auto& each) { return each->block == block && each->id == id; });
    if (known != strings.end())
        return &(*known)->text;
    ByteReader reader(block->data);
    for (UINT skipped = id % 16; skipped > 0 && reader.ok(); --skipped)
        reader.take(2u * reader.u16());
    const std::size_t units = reader.u16();
    const Bytes text = reader.take(2 * units);
    if (!reader.ok() || units == 0)
        return nullptr;
    strings.push_back(
        std::make_unique<CachedString>(CachedString{block, id, orvtext::fromUtf16Le(text.data(), units)}));
    return &strings.back()->text;
}

std::vector<unsigned char> readResources(const std::string& path, bool& readable)
{
    std::ifstream file(path, std::ios::binary);
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    readable = file.good() && size >= 0;
    unsigned char magic[4] = {};
    if (!readable || !readAt(file, 0, magic, std::min<std::size_t>(sizeof magic, static_cast<std::size_t>(size))))
        return {};
    if (std::memcmp(magic, ELFMAG, SELFMAG) == 0)
        return resourceSection(file, static_cast<std::uint64_t>(size));
    // A .res file begins with an entry of no data and a header of 32 bytes.
    const unsigned char* none = magic;
    if (std::any_of(none, none + 4, [](unsigned char byte) { return byte != 0; }))
        return {};
    std::vector<unsigned char> bytes(static_cast<std::size_t>(size));
    if (!readAt(file, 0, bytes.data(), bytes.size()))
        return {};
    return bytes;
}
} // namespace orvplatform
