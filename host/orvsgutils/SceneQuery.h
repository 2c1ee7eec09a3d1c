#pragma once

#include "host/orvmath/Tuple.h"

#include <memory>

namespace orv
{
class IDocument;
}
namespace orvsg
{
class SCSceneRT;
class SCSceneRes;
class SCSceneTopo;
} // namespace orvsg

namespace orvsgutils
{

/// How a node appears when everything above it in the tree is taken into account: what the drawing, the boxes and the
/// exporters share. Any integer is accepted as a node.
class SceneQuery
{
public:
    SceneQuery(std::shared_ptr<orvsg::SCSceneRes> resources, std::shared_ptr<orvsg::SCSceneTopo> topology,
               std::shared_ptr<orvsg::SCSceneRT> runtime);
    /// Takes the records from a document; isComplete tells whether it has them.
    explicit SceneQuery(std::shared_ptr<orv::IDocument> const& document);

    bool isComplete() const;
    int nodeCount() const;

    /// Double precision, column by column: the product of the placements from the root down to the node.
    orvmath::Tuple<double, 16> worldMatrix(int node) const;
    bool isShown(int node) const; ///< its own bit and those of all its ancestors are set
    unsigned long
    color(int node) const; ///< packed: the user's colour of the node or its nearest coloured ancestor, else the file's
    bool isColoredByUser(int node) const; ///< the node or an ancestor carries a colour of the user
    float transparency(
        int node) const; ///< 0 to 1: the user's of the node or its nearest ancestor that has one, else the file's

private:
    std::shared_ptr<orvsg::SCSceneRes> res;
    std::shared_ptr<orvsg::SCSceneTopo> topo;
    std::shared_ptr<orvsg::SCSceneRT> rt;
};

} // namespace orvsgutils
