#include "viewer/scene/ViewFurniture.h"

#include <Graphic3d_TransformPers.hxx>
#include <Prs3d_TextAspect.hxx>

namespace orvviewer
{

namespace
{

Quantity_Color grey(int level)
{
    double const part = level / 255.0;
    return {part, part, part, Quantity_TOC_sRGB};
}

Quantity_Color color(int red, int green, int blue)
{
    return {red / 255.0, green / 255.0, blue / 255.0, Quantity_TOC_sRGB};
}

} // namespace

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
    cube->SetSize(56.0);
    cube->SetDrawAxes(Standard_False);
    cube->SetBoxColor(grey(232));
    cube->SetInnerColor(grey(250));
    cube->SetTextColor(grey(60));
    cube->SetFontHeight(13.0);
    cube->SetRoundRadius(0.08);
    cube->SetBoxFacetExtension(7.0);
    cube->SetBoxTransparency(0.1);
    cube->SetBoxSideLabel(V3d_Yneg, "FRONT");
    cube->SetBoxSideLabel(V3d_Ypos, "BACK");
    cube->SetBoxSideLabel(V3d_Xneg, "LEFT");
    cube->SetBoxSideLabel(V3d_Xpos, "RIGHT");
    cube->SetBoxSideLabel(V3d_Zpos, "TOP");
    cube->SetBoxSideLabel(V3d_Zneg, "BOTTOM");
    cube->DynamicHilightAttributes()->ShadingAspect()->SetColor(color(120, 170, 240));
    return cube;
}

} // namespace orvviewer
