#include "viewer/scene/ViewFurniture.h"

#include "viewer/scene/CubeSides.h"

#include <Graphic3d_TransformPers.hxx>
#include <Prs3d_TextAspect.hxx>

#include <algorithm>
#include <array>
#include <string>

namespace orvviewer
{

namespace
{

constexpr double cubeSide = 56.0; // pixels

Quantity_Color grey(int level)
{
    double const part = level / 255.0;
    return {part, part, part, Quantity_TOC_sRGB};
}

Quantity_Color color(int red, int green, int blue)
{
    return {red / 255.0, green / 255.0, blue / 255.0, Quantity_TOC_sRGB};
}

constexpr std::array<V3d_TypeOfOrientation, 6> sidesInOrder{V3d_Yneg, V3d_Ypos, V3d_Xneg, V3d_Xpos, V3d_Zpos, V3d_Zneg};

std::array<std::string, 6>& sideNames()
{
    static std::array<std::string, 6> names{"FRONT", "BACK", "LEFT", "RIGHT", "TOP", "BOTTOM"};
    return names;
}

/// Height of letters, in pixels, at which the longest name stays on its side.
double fittingHeight()
{
    double widest = 0.0; // in heights of letters
    for (auto const& name : sideNames()) {
        double width = 0.0;
        for (char const unit : name) {
            auto const byte = static_cast<unsigned char>(unit);
            // Characters of three bytes are as wide as high; those of one or two are letters.
            width += byte >= 0xE0 ? 1.0 : (byte & 0xC0) == 0x80 ? 0.0 : 0.68;
        }
        widest = std::max(widest, width);
    }
    return std::min(13.0, cubeSide * 0.95 / widest);
}

} // namespace

void nameCubeSides(std::array<std::string, 6> const& names)
{
    sideNames() = names;
}

void setBackground(Handle(V3d_View) const& view, bool dark)
{
    auto const top = dark ? color(52, 56, 62) : color(248, 249, 250);
    auto const bottom = dark ? color(32, 34, 38) : color(205, 212, 220);
    view->SetBgGradientColors(top, bottom, Aspect_GradientFillMethod_Vertical);
}

void setWhiteBackground(Handle(V3d_View) const& view)
{
    view->SetBgGradientStyle(Aspect_GradientFillMethod_None);
    view->SetBackgroundColor(Quantity_NOC_WHITE);
}

void showAxisCross(Handle(V3d_View) const& view, bool shown, bool dark)
{
    if (!shown) {
        view->TriedronErase();
        return;
    }
    view->ZBufferTriedronSetup(color(205, 62, 56), color(74, 158, 76), color(56, 104, 200), 0.8, 0.045, 24);
    view->TriedronDisplay(Aspect_TOTP_LEFT_LOWER, dark ? grey(220) : grey(70), 0.07, V3d_ZBUFFER);
}

Handle(AIS_ViewCube) makeViewCube()
{
    Handle(AIS_ViewCube) const cube = new AIS_ViewCube();
    cube->SetTransformPersistence(
        new Graphic3d_TransformPers(Graphic3d_TMF_TriedronPers, Aspect_TOTP_RIGHT_UPPER, Graphic3d_Vec2i(72, 72)));
    cube->SetSize(cubeSide);
    cube->SetDrawAxes(Standard_False);
    cube->SetBoxColor(grey(232));
    cube->SetInnerColor(grey(250));
    cube->SetTextColor(grey(60));
    cube->SetFont("Noto Sans CJK JP"); // Latin letters, kana, hangul and Chinese characters alike
    cube->SetFontHeight(fittingHeight());
    cube->SetRoundRadius(0.08);
    cube->SetBoxFacetExtension(7.0);
    cube->SetBoxTransparency(0.1);
    for (std::size_t side = 0; side < sideNames().size(); ++side) {
        cube->SetBoxSideLabel(sidesInOrder[side], sideNames()[side].c_str());
    }
    cube->DynamicHilightAttributes()->ShadingAspect()->SetColor(color(120, 170, 240));
    return cube;
}

} // namespace orvviewer
