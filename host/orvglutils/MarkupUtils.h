#pragma once

#include <memory>
#include <set>

namespace orvsg
{
class SCInfo;
class SCSceneRT;
class SCSceneRes;
class SCSceneTopo;
} // namespace orvsg

namespace orvglutils
{

class MarkupUtils
{
public:
    /// Adds the nodes whose current placement differs from the initial one.
    static void getMovedComponents(std::shared_ptr<orvsg::SCSceneRes> resources,
                                   std::shared_ptr<orvsg::SCSceneTopo> topology, std::set<int>& moved);

    /// To be called after placements of `nodes` have been changed: makes each changed transform's flag agree with its
    /// matrix. The drawing follows with the next hint.
    static void updateScene(std::set<int> const& nodes, std::shared_ptr<orvsg::SCSceneRes>& resources,
                            std::shared_ptr<orvsg::SCSceneRT> runtime, std::shared_ptr<orvsg::SCSceneTopo>& topology,
                            std::shared_ptr<orvsg::SCInfo> info);
};

} // namespace orvglutils
