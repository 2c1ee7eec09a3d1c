#include "viewer/scene/DisplayLook.h"

#include "viewer/scene/PartPresentation.h"

#include <V3d_AmbientLight.hxx>
#include <V3d_DirectionalLight.hxx>

namespace orvviewer
{

namespace
{

constexpr unsigned long selectionColor = 0xE8892E; ///< packed: a clear blue
constexpr unsigned long hoverColor = 0xE6B98C;

} // namespace

void setUpLights(Handle(V3d_Viewer) const& viewer)
{
    viewer->SetLightOff();
    Handle(V3d_AmbientLight) const ambient = new V3d_AmbientLight(Quantity_NOC_WHITE);
    ambient->SetIntensity(1.0F);
    // Both lights go with the eye: one from over the left shoulder, a weaker one from the right to model the far sides.
    Handle(V3d_DirectionalLight) const key = new V3d_DirectionalLight(gp_Dir(0.35, -0.45, -1.0), Quantity_NOC_WHITE);
    key->SetHeadlight(true);
    key->SetIntensity(0.80F);
    Handle(V3d_DirectionalLight) const fill = new V3d_DirectionalLight(gp_Dir(-1.0, 0.25, -0.6), Quantity_NOC_WHITE);
    fill->SetHeadlight(true);
    fill->SetIntensity(0.25F);
    auto const add = [&viewer](Handle(V3d_Light) const& light) {
        viewer->AddLight(light);
        viewer->SetLightOn(light);
    };
    add(ambient);
    add(key);
    add(fill);
}

void setUpHighlighting(Handle(AIS_InteractiveContext) const& context)
{
    auto const style = [&context](Prs3d_TypeOfHighlight kind, unsigned long color) {
        Handle(Prs3d_Drawer) const drawer = context->HighlightStyle(kind);
        drawer->SetColor(colorOf(color));
        drawer->SetDisplayMode(0);
    };
    style(Prs3d_TypeOfHighlight_Selected, selectionColor);
    style(Prs3d_TypeOfHighlight_Dynamic, hoverColor);
    style(Prs3d_TypeOfHighlight_LocalSelected, selectionColor);
    style(Prs3d_TypeOfHighlight_LocalDynamic, hoverColor);
}

} // namespace orvviewer
