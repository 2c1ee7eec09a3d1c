#include "viewer/scene/PartPresentation.h"

#include <Graphic3d_AspectFillArea3d.hxx>
#include <Graphic3d_AspectLine3d.hxx>
#include <Graphic3d_Group.hxx>
#include <Graphic3d_MaterialAspect.hxx>
#include <Prs3d_Presentation.hxx>
#include <PrsMgr_PresentationManager.hxx>
#include <Select3D_SensitivePrimitiveArray.hxx>
#include <SelectMgr_EntityOwner.hxx>
#include <SelectMgr_Selection.hxx>

#include <utility>

namespace orvviewer
{

namespace
{

constexpr unsigned long edgeColor = 0x2B2622; ///< packed: a warm near-black
constexpr int pickPriority = 5;

Handle(Graphic3d_AspectFillArea3d) fillAspect(unsigned long color, float transparency)
{
    // The driver takes diffuse and ambient from the interior colour and the gloss from here.
    Graphic3d_MaterialAspect material(Graphic3d_NameOfMaterial_UserDefined);
    material.SetMaterialType(Graphic3d_MATERIAL_ASPECT);
    material.SetSpecularColor(Quantity_Color(0.30, 0.30, 0.30, Quantity_TOC_sRGB));
    material.SetEmissiveColor(Quantity_NOC_BLACK);
    material.SetShininess(0.45F);
    material.SetColor(colorOf(color));
    material.SetTransparency(transparency);
    Handle(Graphic3d_AspectFillArea3d) const aspect = new Graphic3d_AspectFillArea3d(
        Aspect_IS_SOLID, colorOf(color), colorOf(color), Aspect_TOL_SOLID, 1.0F, material, material);
    // Faces stand back a little, so that the edges on them are drawn whole.
    aspect->SetPolygonOffsets(Aspect_POM_Fill, 1.0F, 1.0F);
    if (transparency > 0.0F) {
        aspect->SetAlphaMode(Graphic3d_AlphaMode_Blend);
    }
    return aspect;
}

} // namespace

Quantity_Color colorOf(unsigned long packed)
{
    auto const part = [packed](unsigned shift) { return static_cast<double>(packed >> shift & 0xFFUL) / 255.0; };
    return {part(0), part(8), part(16), Quantity_TOC_sRGB};
}

SharedPart::SharedPart(std::shared_ptr<PartGeometry const> geometry, Appearance const& appearance)
    : shape(std::move(geometry)), look(appearance)
{
}

void SharedPart::Compute(Handle(PrsMgr_PresentationManager) const&, Handle(Prs3d_Presentation) const& presentation,
                         Standard_Integer)
{
    for (auto const& surface : shape->surfaces) {
        Handle(Graphic3d_Group) const group = presentation->NewGroup();
        bool const showsOwn = surface.color.has_value() && !look.coversFaces;
        group->SetGroupPrimitivesAspect(fillAspect(showsOwn ? *surface.color : look.color, look.transparency));
        group->AddPrimitiveArray(surface.triangles);
    }
    if (!shape->edges.IsNull() && look.transparency < 1.0F) {
        Handle(Graphic3d_Group) const group = presentation->NewGroup();
        Handle(Graphic3d_AspectLine3d) const aspect =
            new Graphic3d_AspectLine3d(colorOf(edgeColor), Aspect_TOL_SOLID, 1.0);
        if (look.transparency > 0.0F) {
            // Edges fade with their faces, though they stay readable.
            Quantity_ColorRGBA const faded(aspect->Color(), 1.0F - 0.75F * look.transparency);
            aspect->SetInteriorColor(faded);
            aspect->SetColor(faded.GetRGB());
            aspect->SetAlphaMode(Graphic3d_AlphaMode_Blend);
        }
        group->SetGroupPrimitivesAspect(aspect);
        group->AddPrimitiveArray(shape->edges);
    }
}

void PartInstance::setPart(Handle(SharedPart) const& part)
{
    shared = part;
    SetToUpdate();
    UpdatePresentations(Standard_True);
}

void PartInstance::Compute(Handle(PrsMgr_PresentationManager) const& manager,
                           Handle(Prs3d_Presentation) const& presentation, Standard_Integer mode)
{
    presentation->SetDisplayPriority(drawingPriority);
    presentation->DisconnectAll(Graphic3d_TOC_DESCENDANT);
    if (!shared->HasInteractiveContext()) {
        shared->SetContext(GetContext());
    }
    manager->Connect(this, shared, mode, mode);
}

void PartInstance::ComputeSelection(Handle(SelectMgr_Selection) const& selection, Standard_Integer mode)
{
    if (mode != 0) {
        return;
    }
    Handle(SelectMgr_EntityOwner) const owner = new SelectMgr_EntityOwner(this, pickPriority);
    for (auto const& surface : shared->geometry().surfaces) {
        Handle(Select3D_SensitivePrimitiveArray) const sensitive = new Select3D_SensitivePrimitiveArray(owner);
        sensitive->SetPatchSizeMax(16);
        sensitive->InitTriangulation(surface.triangles->Attributes(), surface.triangles->Indices(), TopLoc_Location());
        selection->Add(sensitive);
    }
}

} // namespace orvviewer
