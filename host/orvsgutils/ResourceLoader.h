#pragma once

#include <string>

namespace orvsgutils
{

/// Sizes of images in pixels at the display's resolution.
struct PIXELS {
    int largeWidth = 32;
    int largeHeight = 32;
    int smallWidth = 16;
    int smallHeight = 16;
};

/// Texts and images in the language and at the resolution of this run.
class ResourceLoader
{
public:
    /// The text of a string id in the current language, else in English, else empty. `library` is a file name such as
    /// "cloudplugin.dll"; the library must be loaded.
    static std::wstring getString(std::wstring const& library, int const& id);
    static std::wstring getEngString(std::wstring const& library, int const& id);
    static std::wstring getCurrentLocaleID(); ///< two letters, such as "de"

    /// Picks the id for the display's step: images of 1, 1.25, 1.5 and 2 times the first one's size.
    static int getImage(int step1, int step2, int step3, int step4);

    static PIXELS m_Pixel;
    static double m_dpi; ///< the display's logical resolution, dots an inch
};

} // namespace orvsgutils
