#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>
#include <string>

namespace orvexport
{

/// A4 in points.
inline constexpr double shortSide = 595.28;
inline constexpr double longSide = 841.89;

/// A PDF file in memory that is drawn with Cairo. Fonts are embedded; what the chosen font lacks is taken from another.
/// Throws std::runtime_error where it can't be drawn.
class PdfCanvas
{
public:
    PdfCanvas(double width, double height, std::string const& title);

    cairo_t* context() const { return cairo.get(); }
    void nextPage() { cairo_show_page(cairo.get()); }
    /// Ends the file and gives its bytes.
    std::string finish();

private:
    struct Release {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* context) const { cairo_destroy(context); }
    };
    std::unique_ptr<std::string> content = std::make_unique<std::string>();
    std::unique_ptr<cairo_surface_t, Release> surface;
    std::unique_ptr<cairo_t, Release> cairo;
};

/// How a text is set.
struct TextStyle {
    double size = 10; ///< points
    bool bold = false;
    double grey = 0; ///< 0 black to 1 white
    PangoAlignment alignment = PANGO_ALIGN_LEFT;
    int mostLines = 1; ///< what doesn't fit ends in an ellipsis
};

/// A text within a width, wrapped at words, or within one that is too long. Line feeds and control characters count as
/// blanks; characters that turn the direction of others are left out.
class TextBlock
{
public:
    TextBlock(PdfCanvas const& canvas, std::string const& text, double width, TextStyle const& style);
    double height() const;                                        ///< points
    double width() const;                                         ///< points, of the longest line
    void draw(PdfCanvas const& canvas, double x, double y) const; ///< upper left corner

private:
    struct Release {
        void operator()(PangoLayout* layout) const { g_object_unref(layout); }
    };
    std::unique_ptr<PangoLayout, Release> layout;
    double grey;
};

/// Today where the user is: "2024-03-09".
std::string today();

} // namespace orvexport
