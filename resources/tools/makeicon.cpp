// makeicon OUT.ico IN.png...: packs square PNG files of at most 256 pixels into one icon file, in the given order.
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{

using Bytes = std::vector<unsigned char>;

constexpr std::size_t headerSize = 6;
constexpr std::size_t entrySize = 16;

std::uint32_t bigEndian(const Bytes& data, std::size_t at)
{
    return std::uint32_t{data[at]} << 24 | std::uint32_t{data[at + 1]} << 16 | std::uint32_t{data[at + 2]} << 8 |
           std::uint32_t{data[at + 3]};
}

void append(Bytes& out, std::size_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        out.push_back(static_cast<unsigned char>(value >> (8 * i) & 0xFF));
    }
}

// Side in pixels, from the IHDR chunk that every PNG file starts with; 0 if this isn't a square PNG of 1 to 256 pixels.
std::uint32_t sideOf(const Bytes& png)
{
    static constexpr std::array<unsigned char, 8> signature{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
    if (png.size() < 24 || std::memcmp(png.data(), signature.data(), signature.size()) != 0) {
        return 0;
    }
    const std::uint32_t width = bigEndian(png, 16);
    return width == bigEndian(png, 20) && width <= 256 ? width : 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fputs("usage: makeicon OUT.ico IN.png...\n", stderr);
        return 2;
    }
    std::vector<Bytes> pictures;
    for (int i = 2; i < argc; ++i) {
        std::ifstream in(argv[i], std::ios::binary);
        pictures.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        if (sideOf(pictures.back()) == 0) {
            std::fprintf(stderr, "makeicon: %s is not a square PNG file of 1 to 256 pixels\n", argv[i]);
            return 1;
        }
    }

    Bytes out;
    append(out, 0, 2);
    append(out, 1, 2); // an icon, not a cursor
    append(out, pictures.size(), 2);
    std::size_t offset = headerSize + entrySize * pictures.size();
    for (const Bytes& picture : pictures) {
        const std::uint32_t side = sideOf(picture);
        append(out, side & 0xFF, 1); // 256 is written as 0
        append(out, side & 0xFF, 1);
        append(out, 0, 1); // no palette
        append(out, 0, 1);
        append(out, 1, 2);  // planes
        append(out, 32, 2); // bits a pixel
        append(out, picture.size(), 4);
        append(out, offset, 4);
        offset += picture.size();
    }
    for (const Bytes& picture : pictures) {
        out.insert(out.end(), picture.begin(), picture.end());
    }

    std::ofstream file(argv[1], std::ios::binary);
    file.write(reinterpret_cast<const char*>(out.data()), static_cast<std::streamsize>(out.size()));
    file.close();
    if (!file) {
        std::fprintf(stderr, "makeicon: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
