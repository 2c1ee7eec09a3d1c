#pragma once

#include <memory>

namespace orvsg
{
class SCSceneRT;
class SCSceneRes;
class SCSceneTopo;
} // namespace orvsg

namespace orvsgutils
{

/// Colours and transparency that a user lays over the model. Packed colour: red in bits 0-7, green in 8-15, blue in
/// 16-23. A node outside the model is ignored. The materials and the lists of the run-time state say the same as long
/// as both are changed here alone.
class MaterialUtils
{
public:
    using Res = std::shared_ptr<orvsg::SCSceneRes>;
    using RT = std::shared_ptr<orvsg::SCSceneRT>;
    using Topo = std::shared_ptr<orvsg::SCSceneTopo>;

    /// The colour the node shows: the user's, else its own from the file, else its nearest ancestor's, else the default
    /// grey.
    static unsigned long getNodeColor(int node, Res& resources, Topo& topology);
    /// Colours the node and what is below it, and enters it in the list of coloured nodes.
    static void setNodeColor(int node, unsigned long color, Res& resources, RT& runtime, Topo& topology);
    /// 0 opaque to 1 invisible, for the node and what is below it; enters it in the list of transparent nodes.
    static void setNodeTransparency(int node, float transparency, Res& resources, RT& runtime, Topo& topology);
    /// Takes one node's colour, and one node's transparency, off again; its places in the lists become -1.
    static void clearNodeColor(int node, Res& resources, RT& runtime, Topo& topology);
    static void clearNodeTransparency(int node, Res& resources, RT& runtime, Topo& topology);
    /// Takes the colours and transparencies of all listed nodes off and empties both lists; the cost is that of the
    /// lists. Without run-time state it goes through all nodes.
    static void resetAll(Res& resources, RT& runtime, Topo& topology);
};

} // namespace orvsgutils
