// The library offers two functions, and nothing else.

#include <elf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{

/// Names of the symbols that an ELF library defines for others.
std::vector<std::string> exportedNames(char const* path)
{
    std::ifstream file(path, std::ios::binary);
    std::string const bytes((std::istreambuf_iterator<char>(file)), {});
    Elf64_Ehdr header{};
    if (bytes.size() < sizeof header) {
        return {};
    }
    std::memcpy(&header, bytes.data(), sizeof header);
    std::vector<Elf64_Shdr> sections(header.e_shnum);
    std::memcpy(sections.data(), bytes.data() + header.e_shoff, sections.size() * sizeof(Elf64_Shdr));
    std::vector<std::string> names;
    for (Elf64_Shdr const& section : sections) {
        if (section.sh_type != SHT_DYNSYM) {
            continue;
        }
        char const* const strings = bytes.data() + sections.at(section.sh_link).sh_offset;
        for (std::size_t offset = 0; offset < section.sh_size; offset += sizeof(Elf64_Sym)) {
            Elf64_Sym symbol{};
            std::memcpy(&symbol, bytes.data() + section.sh_offset + offset, sizeof symbol);
            auto const binding = ELF64_ST_BIND(symbol.st_info);
            if (symbol.st_shndx != SHN_UNDEF && binding != STB_LOCAL) {
                names.emplace_back(strings + symbol.st_name);
            }
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST(ExportedSymbols, AreTheTwoEntryPoints)
{
    EXPECT_EQ(exportedNames(ORV_PLUGIN_FILE), (std::vector<std::string>{"createPlugin", "destroyPlugin"}));
}
