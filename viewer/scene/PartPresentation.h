#pragma once

#include "viewer/scene/PartGeometry.h"

#include <AIS_InteractiveObject.hxx>

#include <compare>
#include <memory>

namespace orvviewer
{

/// How all occurrences of a part that look alike look.
struct Appearance {
    int mesh = -1;
    unsigned long color = 0;   ///< packed
    bool coversFaces = false;  ///< the colour also hides the faces' own
    float transparency = 0.0F; ///< 0 opaque to 1 invisible

    auto operator<=>(Appearance const&) const = default;
};

/// The drawing of a part in one appearance. It isn't displayed by itself: occurrences are connected to it, so a part
/// that occurs a thousand times is in the graphics memory once.
class SharedPart : public AIS_InteractiveObject
{
    DEFINE_STANDARD_RTTI_INLINE(SharedPart, AIS_InteractiveObject)

public:
    SharedPart(std::shared_ptr<PartGeometry const> geometry, Appearance const& appearance);

    PartGeometry const& geometry() const { return *shape; }

protected:
    void Compute(Handle(PrsMgr_PresentationManager) const& manager, Handle(Prs3d_Presentation) const& presentation,
                 Standard_Integer mode) override;
    void ComputeSelection(Handle(SelectMgr_Selection) const&, Standard_Integer) override {}

private:
    std::shared_ptr<PartGeometry const> shape;
    Appearance look;
};

/// One occurrence of a part in the scene.
class PartInstance : public AIS_InteractiveObject
{
    DEFINE_STANDARD_RTTI_INLINE(PartInstance, AIS_InteractiveObject)

public:
    /// Of its own, below the default: what else comes and goes in the view doesn't change the parts' order.
    static constexpr int drawingPriority = 4;

    explicit PartInstance(int node) : nodeNumber(node) {}

    int node() const { return nodeNumber; }
    /// Takes the place of what it showed before, also where it is hidden: that may belong to a part that goes away.
    void setPart(Handle(SharedPart) const& part);

protected:
    void Compute(Handle(PrsMgr_PresentationManager) const& manager, Handle(Prs3d_Presentation) const& presentation,
                 Standard_Integer mode) override;
    void ComputeSelection(Handle(SelectMgr_Selection) const& selection, Standard_Integer mode) override;

private:
    int nodeNumber;
    Handle(SharedPart) shared;
};

/// The drawing system's colour of a packed one.
Quantity_Color colorOf(unsigned long packed);

} // namespace orvviewer
