#include "exporters/pdf/StoredView.h"

#include "exporters/prc/PrcReader.h"

#include <gtest/gtest.h>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <stdexcept>

namespace orvtest
{

namespace
{

template <std::size_t count>
std::array<double, count> numbersOf(QPDFObjectHandle list)
{
    if (list.getArrayNItems() != static_cast<int>(count)) {
        throw std::runtime_error("a list of " + std::to_string(list.getArrayNItems()) + " numbers");
    }
    std::array<double, count> result{};
    for (std::size_t i = 0; i < count; ++i) {
        result[i] = list.getArrayItem(static_cast<int>(i)).getNumericValue();
    }
    return result;
}

/// The view that an annotation's or a stream's entry chooses: a place in the list of views.
QPDFObjectHandle chosenView(QPDFObjectHandle annotation, QPDFObjectHandle stream)
{
    auto const choice = annotation.hasKey("/3DV") ? annotation.getKey("/3DV") : stream.getKey("/DV");
    return stream.getKey("/VA").getArrayItem(static_cast<int>(QPDFObjectHandle(choice).getIntValue()));
}

} // namespace

std::array<double, 3> StoredView::fromWorld(std::array<double, 3> const& point) const
{
    // A rotation's inverse is its transpose: the distance from the camera along each of its axes.
    std::array<double, 3> result{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (std::size_t i = 0; i < 3; ++i) {
            result[axis] += cameraToWorld[3 * axis + i] * (point[i] - cameraToWorld[9 + i]);
        }
    }
    return result;
}

StoredView storedView(std::filesystem::path const& pdf)
{
    QPDF file;
    file.processFile(pdf.c_str());
    auto const pages = QPDFPageDocumentHelper(file).getAllPages();
    EXPECT_EQ(pages.size(), 1U);
    auto page = pages.at(0).getObjectHandle();
    auto annotation = page.getKey("/Annots").getArrayItem(0);
    auto stream = annotation.getKey("/3DD");
    auto const content = stream.getStreamData();
    auto read = prc::read({content->getBuffer(), content->getSize()});
    if (!read.scene) {
        throw std::runtime_error(read.problem);
    }
    StoredView result;
    result.artwork = std::move(*read.scene);
    auto view = chosenView(annotation, stream.getDict());
    result.name = view.getKey("/XN").getUTF8Value();
    EXPECT_EQ(view.getKey("/MS").getName(), "/M");
    result.cameraToWorld = numbersOf<12>(view.getKey("/C2W"));
    result.orbit = view.getKey("/CO").getNumericValue();
    auto projection = view.getKey("/P");
    result.orthographic = projection.getKey("/Subtype").getName() == "/O";
    if (result.orthographic) {
        result.scale = projection.getKey("/OS").getNumericValue();
        result.binding = projection.getKey("/OB").getName();
    } else {
        result.fieldOfView = projection.getKey("/FOV").getNumericValue();
        result.fieldOfViewOf = projection.getKey("/PS").getName();
    }
    EXPECT_EQ(view.getKey("/BG").getKey("/CS").getName(), "/DeviceRGB");
    result.background = numbersOf<3>(view.getKey("/BG").getKey("/C"));
    auto const rectangle = annotation.getKey("/Rect").getArrayAsRectangle();
    auto const sheet = page.getKey("/MediaBox").getArrayAsRectangle();
    result.left = rectangle.llx - sheet.llx;
    result.top = sheet.ury - rectangle.ury;
    result.width = rectangle.urx - rectangle.llx;
    result.height = rectangle.ury - rectangle.lly;
    return result;
}

} // namespace orvtest
