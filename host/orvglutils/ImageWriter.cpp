#include "host/orvglutils/ImageWriter.h"

#include "host/runtime/Files.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <string_view>
#include <vector>

#include <turbojpeg.h>

namespace orvglutils
{

namespace
{

constexpr int quality = 85;
constexpr unsigned int largestSide = 65500; // of a JPEG picture

/// JPEG has no transparency: what would be left out is drawn white, like the background of a printed page.
std::vector<unsigned char> withoutMask(unsigned char const* pixels, std::size_t count, unsigned long mask)
{
    std::vector<unsigned char> result(pixels, pixels + count * 3);
    for (std::size_t i = 0; i < result.size(); i += 3) {
        unsigned long const color = result[i] | static_cast<unsigned long>(result[i + 1]) << 8 |
                                    static_cast<unsigned long>(result[i + 2]) << 16;
        if (color == mask) {
            result[i] = result[i + 1] = result[i + 2] = std::numeric_limits<unsigned char>::max();
        }
    }
    return result;
}

} // namespace

ImageWriter::ImageWriter(unsigned long const& color) : maskColor(color) {}

bool ImageWriter::write(unsigned int width, unsigned int height, unsigned char const* pixels, wchar_t const* path,
                        bool bottomUp, bool opaque)
{
    if (pixels == nullptr || path == nullptr || width == 0 || height == 0 || width > largestSide ||
        height > largestSide) {
        return false;
    }
    std::vector<unsigned char> painted;
    if (!opaque) {
        painted = withoutMask(pixels, std::size_t{width} * height, maskColor);
        pixels = painted.data();
    }
    std::unique_ptr<void, int (*)(tjhandle)> const compressor(tjInitCompress(), tjDestroy);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    bool const isCompressed =
        compressor != nullptr &&
        tjCompress2(compressor.get(), pixels, static_cast<int>(width), 0, static_cast<int>(height), TJPF_RGB, &bytes,
                    &size, TJSAMP_444, quality, TJFLAG_ACCURATEDCT | (bottomUp ? TJFLAG_BOTTOMUP : 0)) == 0;
    std::unique_ptr<unsigned char, void (*)(unsigned char*)> const owner(bytes, tjFree);
    return isCompressed && orvhost::replaceFile(orvhost::nativePath(path),
                                                std::string_view(reinterpret_cast<char const*>(bytes), size));
}

} // namespace orvglutils
