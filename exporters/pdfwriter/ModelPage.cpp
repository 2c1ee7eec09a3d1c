#include "exporters/pdfwriter/ModelPage.h"

#include "exporters/page/PdfPage.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <charconv>
#include <memory>

namespace pdfwriter
{

namespace
{

using orvexport::PdfCanvas;
using orvexport::TextBlock;

constexpr double margin = 36;
constexpr double fieldTop = 80; ///< from the upper edge of the page
constexpr double fieldBottom = orvexport::shortSide - fieldTop - fieldHeight;

/// A number as PDF writes it: with a point, never with an exponent, whatever the locale.
std::string number(double value)
{
    char text[400];
    auto const end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6);
    return {text, end.ptr};
}

/// What shows around the model, and in its place where there is no poster.
std::string frameOf(ModelPage const& page)
{
    PdfCanvas canvas(orvexport::longSide, orvexport::shortSide, page.title);
    TextBlock(canvas, page.title, fieldWidth, {18, true, 0, PANGO_ALIGN_LEFT, 1}).draw(canvas, margin, margin - 6);
    TextBlock(canvas, page.facts, fieldWidth, {9, false, 0.4, PANGO_ALIGN_LEFT, 1}).draw(canvas, margin, margin + 20);
    cairo_t* const cairo = canvas.context();
    // The line runs around the poster, at some distance: readers extend a picture to whole pixels.
    constexpr double outside = 1.5;
    cairo_rectangle(cairo, margin - outside, fieldTop - outside, fieldWidth + 2 * outside, fieldHeight + 2 * outside);
    cairo_set_source_rgb(cairo, 0.96, 0.97, 0.98);
    cairo_fill_preserve(cairo);
    cairo_set_source_rgb(cairo, 0.7, 0.7, 0.7);
    cairo_set_line_width(cairo, 1);
    cairo_stroke(cairo);
    if (page.poster.pixels.empty()) {
        TextBlock const word(canvas, "3D model", fieldWidth, {24, false, 0.5, PANGO_ALIGN_CENTER, 1});
        word.draw(canvas, margin, fieldTop + (fieldHeight - word.height()) / 2);
    }
    TextBlock(canvas, "Click the picture to turn the model. It takes a PDF viewer that shows 3D content.", fieldWidth,
              {8, false, 0.4, PANGO_ALIGN_LEFT, 1})
        .draw(canvas, margin, fieldTop + fieldHeight + 8);
    return canvas.finish();
}

QPDFObjectHandle viewDictionary(View3D const& view, std::size_t index)
{
    std::string text = "<< /Type /3DView /MS /M /C2W [";
    for (double const x : view.cameraToWorld) {
        text += number(x) + ' ';
    }
    text += "] /CO " + number(view.orbit);
    if (view.orthographic) {
        text += " /P << /Subtype /O /OB /Absolute /OS " + number(fieldHeight / view.pictureHeight) + " >>";
    } else {
        text += " /P << /Subtype /P /PS /H /FOV " + number(view.fieldOfView) + " >>";
    }
    text += " /BG << /Type /3DBG /Subtype /SC /CS /DeviceRGB /C [1 1 1] >>"
            " /RM << /Type /3DRenderMode /Subtype /Solid >> /LS << /Type /3DLightingScheme /Subtype /CAD >> >>";
    auto dictionary = QPDFObjectHandle::parse(text);
    dictionary.replaceKey("/XN", QPDFObjectHandle::newUnicodeString(view.name));
    dictionary.replaceKey("/IN", QPDFObjectHandle::newString("view" + std::to_string(index)));
    return dictionary;
}

std::string bytesOf(std::vector<std::uint8_t> const& list)
{
    return {list.begin(), list.end()};
}

QPDFObjectHandle modelStream(QPDF& pdf, ModelPage const& page, QPDFObjectHandle const& views)
{
    auto stream = QPDFObjectHandle::newStream(&pdf, bytesOf(page.prc));
    auto dictionary = stream.getDict();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/3D"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/PRC"));
    dictionary.replaceKey("/VA", views);
    dictionary.replaceKey("/DV", QPDFObjectHandle::newInteger(0));
    return pdf.makeIndirectObject(stream);
}

QPDFObjectHandle appearanceOf(QPDF& pdf, Poster const& poster)
{
    auto image = QPDFObjectHandle::newStream(&pdf, bytesOf(poster.pixels));
    image.replaceDict(QPDFObjectHandle::parse(
        "<< /Type /XObject /Subtype /Image /ColorSpace /DeviceRGB /BitsPerComponent 8 /Interpolate true /Width " +
        std::to_string(poster.width) + " /Height " + std::to_string(poster.height) + " >>"));
    auto form = QPDFObjectHandle::newStream(&pdf, "q " + number(fieldWidth) + " 0 0 " + number(fieldHeight) +
                                                      " 0 0 cm /Poster Do Q\n");
    form.replaceDict(QPDFObjectHandle::parse("<< /Type /XObject /Subtype /Form /BBox [0 0 " + number(fieldWidth) + ' ' +
                                             number(fieldHeight) + "] /Resources << /XObject << >> >> >>"));
    form.getDict().getKey("/Resources").getKey("/XObject").replaceKey("/Poster", pdf.makeIndirectObject(image));
    return pdf.makeIndirectObject(form);
}

} // namespace

std::string pdfOf(ModelPage const& page)
{
    std::string const frame = frameOf(page);
    QPDF pdf;
    pdf.processMemoryFile("page", frame.data(), frame.size());
    auto sheet = QPDFPageDocumentHelper(pdf).getAllPages().at(0).getObjectHandle();

    auto views = QPDFObjectHandle::newArray();
    for (std::size_t i = 0; i < page.views.size(); ++i) {
        views.appendItem(pdf.makeIndirectObject(viewDictionary(page.views[i], i)));
    }
    auto annotation = QPDFObjectHandle::parse(
        "<< /Type /Annot /Subtype /3D /F 4 /Border [0 0 0] /3DA << /A /XA /D /PC /TB true >> /Rect [" + number(margin) +
        ' ' + number(fieldBottom) + ' ' + number(margin + fieldWidth) + ' ' + number(fieldBottom + fieldHeight) +
        "] >>");
    annotation.replaceKey("/P", sheet);
    annotation.replaceKey("/Contents", QPDFObjectHandle::newUnicodeString("3D model of " + page.title));
    annotation.replaceKey("/3DD", modelStream(pdf, page, views));
    annotation.replaceKey("/3DV", QPDFObjectHandle::newInteger(0));
    if (!page.poster.pixels.empty()) {
        auto appearance = QPDFObjectHandle::newDictionary();
        appearance.replaceKey("/N", appearanceOf(pdf, page.poster));
        annotation.replaceKey("/AP", appearance);
    }
    auto annotations = QPDFObjectHandle::newArray();
    annotations.appendItem(pdf.makeIndirectObject(annotation));
    sheet.replaceKey("/Annots", annotations);

    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setMinimumPDFVersion("1.7", 1); // the first level that knows PRC
    writer.write();
    std::unique_ptr<Buffer> const buffer(writer.getBuffer());
    return {reinterpret_cast<char const*>(buffer->getBuffer()), buffer->getSize()};
}

} // namespace pdfwriter
