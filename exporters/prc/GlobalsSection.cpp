#include "exporters/prc/Sections.h"

#include <algorithm>

namespace prc
{

namespace
{

// What writers of the format customarily state about their tessellation.
constexpr double customaryChordRatio = 2000;
constexpr double customaryAngle = 40;

std::size_t indexOf(std::vector<Color> const& colors, Color const& color)
{
    return static_cast<std::size_t>(std::find(colors.begin(), colors.end(), color) - colors.begin());
}

std::vector<Color> colorsOf(std::vector<Style> const& styles)
{
    std::vector<Color> colors;
    for (auto const& style : styles)
        if (indexOf(colors, style.color) == colors.size())
            colors.push_back(style.color);
    return colors;
}

void solidLinePattern(SectionWriter& out, EntityNumbers& numbers)
{
    out.type(Entity::linePattern);
    out.numberedBase("", numbers);
    out.count(0); // lengths
    out.real(0);  // phase
    out.boolean(false);
}

void writeStyle(SectionWriter& out, EntityNumbers& numbers, Style const& style, std::vector<Color> const& colors)
{
    out.type(Entity::style);
    out.numberedBase("", numbers);
    out.real(1);                                     // width of lines, millimetres
    out.boolean(false);                              // no picture
    out.reference(0);                                // line pattern
    out.boolean(false);                              // a colour, not a material
    out.count(3 * indexOf(colors, style.color) + 1); // colours are counted by their components
    out.boolean(style.opacity < 255);
    if (style.opacity < 255)
        out.character(style.opacity);
    for (int additional = 0; additional < 3; ++additional)
        out.boolean(false);
}

} // namespace

Bytes globalsSection(Scene const& scene, EntityNumbers& numbers)
{
    SectionWriter out;
    auto const colors = colorsOf(scene.styles);
    out.count(0); // schema
    out.type(Entity::globals);
    out.base("", versionAttribute());
    out.count(0); // other file structures
    out.real(customaryChordRatio);
    out.real(customaryAngle);
    out.string(""); // default font
    out.count(0);   // fonts
    out.count(colors.size());
    for (auto const& color : colors)
        out.vector(color.red, color.green, color.blue);
    out.count(0); // pictures
    out.count(0); // textures
    out.count(0); // materials
    out.count(1); // line patterns
    solidLinePattern(out, numbers);
    out.count(scene.styles.size());
    for (auto const& style : scene.styles)
        writeStyle(out, numbers, style, colors);
    out.count(0); // fill patterns
    out.count(0); // coordinate systems
    out.noUserData();
    return out.finish();
}

} // namespace prc
