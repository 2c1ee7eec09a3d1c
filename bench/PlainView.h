#pragma once

#include "feed/Feed.h"
#include "tests/support/TreeScene.h"

#include <set>
#include <utility>
#include <vector>

namespace orvbench
{

/// The same scene in plain arrays, worked on by loops that know all about it: what capture and replay of a view are
/// compared with.
class PlainView
{
public:
    /// What a capture gives, in plain arrays.
    struct State {
        std::vector<Vector3> colorOfNode;
        std::vector<std::pair<int, int>> nodecolor;
        std::vector<int> transparent;
        std::vector<int> hidden;
        std::vector<std::pair<int, Matrix4>> nodetransform;
    };

    explicit PlainView(orvtest::TreeScene const& scene);

    State capture() const;
    void replay(Feed const& feed);

private:
    using Matrix = orvmath::Tuple<double, 16>;

    void resetAppearance();
    void resetPlacements(std::set<int> const& nodes);
    void flagPlacements(std::set<int> const& nodes);
    void fitCamera(FeedViewport const& viewport);
    std::set<int> allNodes() const;

    std::vector<bool> visibility;
    std::vector<int> coloredNodes;
    std::vector<int> transparentNodes;
    std::vector<int> parents;
    std::vector<int> transformOfNode;
    std::vector<orvsg::BBox> boxes;
    std::vector<orvsg::Transform> current;
    std::vector<orvsg::Transform> initial;
    std::vector<orvsg::Material> materials;
    std::shared_ptr<orvgl::Camera> camera;
};

} // namespace orvbench
