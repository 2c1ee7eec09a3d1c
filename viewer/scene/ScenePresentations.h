#pragma once

#include "viewer/scene/PartPresentation.h"

#include "host/orv/IDocument.h"

#include <AIS_InteractiveContext.hxx>
#include <gp_Trsf.hxx>

#include <map>
#include <memory>
#include <set>
#include <vector>

namespace orvviewer
{

/// The presentations of a document's nodes. sync compares the records with what was shown last and touches only what
/// differs.
class ScenePresentations
{
public:
    explicit ScenePresentations(Handle(AIS_InteractiveContext) context);

    void setDocument(std::shared_ptr<orv::IDocument> document);
    void sync();
    /// Nodes with children stand for all parts below them.
    void setSelection(std::set<int> const& nodes);
    int displayedCount() const;

private:
    struct Shown {
        Handle(PartInstance) instance;
        Appearance look;
        gp_Trsf placement;
        bool isVisible = false;
    };

    Handle(SharedPart) sharedPart(Appearance const& look);
    void dropUnusedParts();
    void applySelection();

    Handle(AIS_InteractiveContext) context;
    std::shared_ptr<orv::IDocument> document;
    std::vector<std::shared_ptr<PartGeometry const>> geometries; ///< by mesh
    std::map<Appearance, Handle(SharedPart)> parts;
    std::map<int, Shown> shown; ///< by node
    std::set<int> selection;
};

} // namespace orvviewer
