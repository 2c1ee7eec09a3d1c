#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvtest
{

/// What stands in a 3DS file, chunk by chunk, without a library's view of it.
struct ThreeDsFile {
    struct Mesh {
        std::string name;
        std::size_t vertices = 0;
        std::size_t faces = 0;
    };
    struct Place {
        std::string name;
        std::int16_t parent = 0; ///< place in the tree
    };
    std::vector<Mesh> meshes;
    std::vector<Place> tree;

    explicit ThreeDsFile(std::string const& bytes) { read(bytes, 0, bytes.size()); }

private:
    static std::uint32_t number(std::string const& bytes, std::size_t at, int size)
    {
        std::uint32_t value = 0;
        for (int i = 0; i < size; ++i) {
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i))))
                     << (8 * i);
        }
        return value;
    }

    void read(std::string const& bytes, std::size_t at, std::size_t end)
    {
        while (at + 6 <= end) {
            auto const kind = number(bytes, at, 2);
            std::size_t const next = at + number(bytes, at + 2, 4);
            std::size_t content = at + 6;
            switch (kind) {
            case 0x4000: // an object by name
                meshes.push_back({bytes.c_str() + content, 0, 0});
                content += meshes.back().name.size() + 1;
                [[fallthrough]];
            case 0x4D4D: // the file
            case 0x3D3D: // its objects
            case 0x4100: // the triangles of an object
            case 0xB000: // the tree
            case 0xB002: // a place in it
                read(bytes, content, next);
                break;
            case 0x4110:
                meshes.back().vertices = number(bytes, content, 2);
                break;
            case 0x4120:
                meshes.back().faces = number(bytes, content, 2);
                break;
            case 0xB010: {
                Place place{bytes.c_str() + content, 0};
                content += place.name.size() + 1 + 4;
                place.parent = static_cast<std::int16_t>(number(bytes, content, 2));
                tree.push_back(place);
                break;
            }
            default:
                break;
            }
            if (next <= at) {
                throw std::runtime_error("a chunk without a length");
            }
            at = next;
        }
    }
};

} // namespace orvtest
