#pragma once
// The entries of a compiled resource file (.res, Microsoft's documented format: a header of type, name and language
// before each entry's data, all on 4-byte boundaries). Damaged files give the entries before the damage.

#include "ByteReader.h"
#include "windef.h"

#include <memory>
#include <string>
#include <vector>

namespace orvplatform
{
// A type or a name: a number, or a text that is compared without case.
struct ResourceName {
    std::uint16_t number = 0;
    std::wstring text; // empty: the number counts

    static ResourceName of(LPCWSTR idOrText);
    bool operator==(const ResourceName& other) const;
};

struct ResourceEntry {
    ResourceName type;
    ResourceName name;
    LANGID language = 0;
    Bytes data;
};

class ResourceFile
{
public:
    ResourceFile() = default;
    explicit ResourceFile(std::vector<unsigned char> bytes);
    ResourceFile(ResourceFile&&) = default;
    ResourceFile& operator=(ResourceFile&&) = default;

    const std::vector<ResourceEntry>& entries() const { return list; }
    bool isDamaged() const { return damaged; }

    // The entry in the language, else in its primary language, else in English, else in any; null when there is none.
    const ResourceEntry* find(const ResourceName& type, const ResourceName& name, LANGID language) const;
    // A string of the string table (blocks of 16). Null when there is none; an empty text counts as none.
    const std::wstring* string(UINT id, LANGID language) const;

private:
    struct CachedString {
        const ResourceEntry* block;
        UINT id;
        std::wstring text;
    };
    std::vector<unsigned char> storage;
    std::vector<ResourceEntry> list;
    mutable std::vector<std::unique_ptr<CachedString>> strings;
    bool damaged = false;
};

// The bytes of the resources in a file: the whole of a .res file, or the section ".rsrc.orvanta" of an ELF library.
// Empty for a library without resources; `readable` is false when the file itself could not be read.
std::vector<unsigned char> readResources(const std::string& path, bool& readable);
} // namespace orvplatform
