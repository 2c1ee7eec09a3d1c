#include "resources/ElfSection.h"

#include <cstring>
#include <elf.h>
#include <stdexcept>

namespace restest
{

namespace
{

template <class Header>
Header headerAt(const Bytes& file, std::size_t at)
{
    Header header;
    if (at > file.size() || file.size() - at < sizeof header) {
        throw std::runtime_error("library ends early");
    }
    std::memcpy(&header, file.data() + at, sizeof header);
    return header;
}

} // namespace

std::optional<Bytes> sectionOf(const Bytes& library, const std::string& name)
{
    const auto elf = headerAt<Elf64_Ehdr>(library, 0);
    const auto sectionAt = [&](std::size_t i) {
        return headerAt<Elf64_Shdr>(library, elf.e_shoff + i * elf.e_shentsize);
    };
    const auto names = sectionAt(elf.e_shstrndx);
    for (std::size_t i = 0; i < elf.e_shnum; ++i) {
        const auto header = sectionAt(i);
        const char* found = reinterpret_cast<const char*>(library.data()) + names.sh_offset + header.sh_name;
        if (name == found) {
            const auto from = library.begin() + static_cast<std::ptrdiff_t>(header.sh_offset);
            return Bytes(from, from + static_cast<std::ptrdiff_t>(header.sh_size));
        }
    }
    return std::nullopt;
}

} // namespace restest
