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
/// differs. Every node is in the drawing from the start and in the order of the nodes, hidden or not: what shines
/// through is blended, and what lies in one plane is drawn, in the drawing's order, and a scene's picture must not
/// depend on what was shown before.
class ScenePresentations
{
public:
    explicit ScenePresentations(Handle(AIS_InteractiveContext) context);

    void setDocument(std::shared_ptr<orv::IDocument> document);
    /// A view that was made after the document was shown takes the nodes over in any order: puts them right.
    void putInOrder();
    void sync();
    /// Nodes with children stand for all parts below them.
    void setSelection(std::set<int> const& nodes);
    int displayedCount() const;

private:
    struct Shown {
        Handle(PartInstance) instance;
        Appearance look;
        gp_Trsf placement;
        bool isVisible = true;
    };

    Handle(SharedPart) sharedPart(Appearance const& look);
    void dropUnusedParts();
    void setVisible(Handle(PartInstance) const& instance, bool visible);
    void applySelection();

    Handle(AIS_InteractiveContext) context;
    std::shared_ptr<orv::IDocument> document;
    std::vector<std::shared_ptr<PartGeometry const>> geometries; ///< by mesh
    std::map<Appearance, Handle(SharedPart)> parts;
    std::map<int, Shown> shown; ///< by node
    std::set<int> selection;
};

} // namespace orvviewer
