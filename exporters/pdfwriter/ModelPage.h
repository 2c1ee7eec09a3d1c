#pragma once

#include "exporters/pdfwriter/View3D.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace pdfwriter
{

/// Red, green and blue, a byte each, from the top row down; empty where the view can't be drawn.
struct Poster {
    unsigned width = 0;
    unsigned height = 0;
    std::vector<std::uint8_t> pixels;
};

/// What the page shows. The first view is the one in which the model opens.
struct ModelPage {
    std::string title; ///< UTF-8
    std::string facts; ///< one line below it
    std::vector<std::uint8_t> prc;
    std::vector<View3D> views;
    Poster poster;
};

/// Size in points of the field in which the model shows.
inline constexpr double fieldWidth = 769.89;
inline constexpr double fieldHeight = 450;

/// A PDF file of one A4 page, landscape, with the model as a 3D annotation (ISO 32000-1, 13.6): a stream in the PRC
/// format, its views, the poster as its appearance. Throws a std::exception where it can't be made.
std::string pdfOf(ModelPage const& page);

} // namespace pdfwriter
