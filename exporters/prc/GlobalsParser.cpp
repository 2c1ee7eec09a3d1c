#include "exporters/prc/FormatError.h"
#include "exporters/prc/Placement.h"
#include "exporters/prc/SectionParsers.h"

namespace prc
{

namespace
{

// Colours are referred to by the number of their first component, from 1; 0 is none.
Color colorAt(std::uint32_t component, std::vector<Color> const& colors)
{
    if (component == 0)
        return {};
    if ((component - 1) % 3 != 0 || (component - 1) / 3 >= colors.size())
        throw FormatError("a style has a colour that the file doesn't hold");
    return colors[(component - 1) / 3];
}

Style readMaterial(SectionReader& in, std::vector<Color> const& colors)
{
    in.expect(Entity::material, "a material");
    in.numberedBase();
    std::array<Color, 4> parts; // ambient, diffuse, emissive, specular
    for (auto& color : parts)
        color = colorAt(in.unsignedInteger(), colors);
    for (int number = 0; number < 5; ++number) // shininess and the parts' alphas
        in.real();
    return {parts[1], 255};
}

void readLinePattern(SectionReader& in)
{
    in.expect(Entity::linePattern, "a line pattern");
    in.numberedBase();
    in.numbers(in.count(2));
    in.real();
    in.boolean();
}

Style readStyle(SectionReader& in, std::vector<Color> const& colors, std::vector<Style> const& materials,
                std::size_t linePatterns)
{
    in.expect(Entity::style, "a style");
    in.numberedBase();
    in.real();
    in.boolean();
    if (auto const pattern = in.reference(); pattern && *pattern >= linePatterns)
        throw FormatError("a style has a line pattern that the file doesn't hold");
    Style style;
    if (in.boolean()) {
        auto const material = in.reference();
        if (material && *material >= materials.size())
            throw FormatError("a style has a material that the file doesn't hold");
        if (material)
            style = materials[*material];
    } else {
        style.color = colorAt(in.unsignedInteger(), colors);
    }
    if (in.boolean())
        style.opacity = in.character();
    for (int additional = 0; additional < 3; ++additional)
        if (in.boolean())
            in.character();
    return style;
}

void readCoordinateSystem(SectionReader& in)
{
    in.expect(Entity::coordinateSystem, "a coordinate system");
    in.numberedBase();
    in.graphics();
    in.expectNone("nested coordinate systems");
    in.expectNone("coordinate systems with a mesh");
    readPlacement(in);
    in.skipUserData();
}

void readFont(SectionReader& in)
{
    in.string();
    in.unsignedInteger();
    for (std::uint32_t keys = in.count(); keys > 0; --keys) {
        in.unsignedInteger();
        in.character();
    }
}

} // namespace

void readGlobals(SectionReader& in, Scene& scene, FileFacts& facts)
{
    in.expectNone("fields of a newer version");
    in.expect(Entity::globals, "the globals section");
    in.base();
    in.expectNone("references to other files");
    in.real();
    in.real();
    in.string();
    for (std::uint32_t fonts = in.count(); fonts > 0; --fonts)
        readFont(in);
    facts.colors.resize(in.count(6));
    for (auto& color : facts.colors) {
        color.red = in.real();
        color.green = in.real();
        color.blue = in.real();
    }
    in.expectNone("pictures");
    in.expectNone("textures");
    std::vector<Style> materials;
    for (std::uint32_t rest = in.count(); rest > 0; --rest)
        materials.push_back(readMaterial(in, facts.colors));
    facts.materials = materials.size();
    facts.linePatterns = in.count();
    for (std::size_t i = 0; i < facts.linePatterns; ++i)
        readLinePattern(in);
    for (std::uint32_t rest = in.count(); rest > 0; --rest)
        scene.styles.push_back(readStyle(in, facts.colors, materials, facts.linePatterns));
    in.expectNone("fill patterns");
    facts.coordinateSystems = in.count();
    for (std::size_t i = 0; i < facts.coordinateSystems; ++i)
        readCoordinateSystem(in);
    in.skipUserData();
    in.expectEnd();
}

} // namespace prc
