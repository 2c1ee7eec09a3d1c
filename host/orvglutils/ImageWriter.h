#pragma once

namespace orvglutils
{

/// Writes a frame of orvgl::ImageRenderer to a JPEG file.
class ImageWriter
{
public:
    /// `maskColor` is the packed colour that formats with transparency would leave out; JPEG has none.
    explicit ImageWriter(unsigned long const& maskColor);

    /// Pixels are red, green and blue, a byte each, without padding; with `bottomUp` the last row comes first, with
    /// `opaque` the mask colour is drawn like any other. The file is replaced as a whole: on failure (false) the
    /// earlier one stays.
    bool write(unsigned int width, unsigned int height, unsigned char const* pixels, wchar_t const* path, bool bottomUp,
               bool opaque);

private:
    unsigned long maskColor;
};

} // namespace orvglutils
