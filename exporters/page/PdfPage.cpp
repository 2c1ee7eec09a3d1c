#include "exporters/page/PdfPage.h"

#include <cairo-pdf.h>

#include <ctime>
#include <stdexcept>
#include <string_view>

namespace orvexport
{

namespace
{

cairo_status_t append(void* target, unsigned char const* bytes, unsigned length)
{
    try {
        static_cast<std::string*>(target)->append(reinterpret_cast<char const*>(bytes), length);
        return CAIRO_STATUS_SUCCESS;
    } catch (std::exception const&) {
        return CAIRO_STATUS_WRITE_ERROR;
    }
}

void check(cairo_status_t status)
{
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(cairo_status_to_string(status));
    }
}

/// Whether a character of three bytes stands there that turns the direction of what follows: U+202A to U+202E and
/// U+2066 to U+2069. A name of somebody else's file could read as another by it.
bool turnsText(std::string_view text)
{
    return text.starts_with("\xE2\x80") && text.size() > 2
               ? text[2] >= '\xAA' && text[2] <= '\xAE'
               : text.starts_with("\xE2\x81") && text.size() > 2 && text[2] >= '\xA6' && text[2] <= '\xA9';
}

std::string printable(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        auto const code = static_cast<unsigned char>(text.front());
        bool const isLeftOut = turnsText(text);
        if (!isLeftOut) {
            result += code < 0x20 || code == 0x7F ? ' ' : text.front();
        }
        text.remove_prefix(isLeftOut ? 3 : 1);
    }
    return result;
}

} // namespace

PdfCanvas::PdfCanvas(double width, double height, std::string const& title)
    : surface(cairo_pdf_surface_create_for_stream(append, content.get(), width, height)),
      cairo(cairo_create(surface.get()))
{
    check(cairo_surface_status(surface.get()));
    check(cairo_status(cairo.get()));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, printable(title).c_str());
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "Orvanta");
}

std::string PdfCanvas::finish()
{
    check(cairo_status(cairo.get()));
    cairo.reset();
    cairo_surface_finish(surface.get());
    check(cairo_surface_status(surface.get()));
    return std::move(*content);
}

TextBlock::TextBlock(PdfCanvas const& canvas, std::string const& text, double width, TextStyle const& style)
    : layout(pango_cairo_create_layout(canvas.context())), grey(style.grey)
{
    PangoFontDescription* const font = pango_font_description_from_string(style.bold ? "Sans Bold" : "Sans");
    pango_font_description_set_absolute_size(font, style.size * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
    pango_layout_set_width(layout.get(), static_cast<int>(width * PANGO_SCALE));
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
    pango_layout_set_height(layout.get(), -style.mostLines);
    pango_layout_set_alignment(layout.get(), style.alignment);
    // Longer texts than a page holds only cost time.
    constexpr std::size_t most = 20000;
    std::string shown = printable(text.substr(0, most));
    while (!shown.empty() && g_utf8_validate(shown.data(), static_cast<gssize>(shown.size()), nullptr) == FALSE) {
        shown.pop_back();
    }
    pango_layout_set_text(layout.get(), shown.data(), static_cast<int>(shown.size()));
}

double TextBlock::height() const
{
    int units = 0;
    pango_layout_get_size(layout.get(), nullptr, &units);
    return static_cast<double>(units) / PANGO_SCALE;
}

double TextBlock::width() const
{
    int units = 0;
    pango_layout_get_size(layout.get(), &units, nullptr);
    return static_cast<double>(units) / PANGO_SCALE;
}

void TextBlock::draw(PdfCanvas const& canvas, double x, double y) const
{
    cairo_set_source_rgb(canvas.context(), grey, grey, grey);
    cairo_move_to(canvas.context(), x, y);
    pango_cairo_show_layout(canvas.context(), layout.get());
}

std::string today()
{
    std::time_t const now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", &local);
    return text;
}

} // namespace orvexport
