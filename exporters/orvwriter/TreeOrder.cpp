#include "exporters/orvwriter/TreeOrder.h"

#include "host/orvsgutils/TreeWalk.h"

#include <algorithm>

namespace orvwriter
{

std::vector<Entry> entriesOf(orvsg::SCSceneTopo const& topology)
{
    auto const count = topology.nodes.size();
    std::vector<std::vector<int>> children(count);
    for (int node = 1; topology.nodes.contains(node); ++node) {
        children[static_cast<std::size_t>(std::max(0, orvsgutils::parentOf(topology, node)))].push_back(node);
    }
    std::vector<Entry> entries;
    struct Pending {
        int node;
        std::size_t parent;
    };
    std::vector<Pending> pending;
    if (count > 0) {
        pending.push_back({0, 0});
    }
    while (!pending.empty()) {
        auto const [node, parent] = pending.back();
        pending.pop_back();
        auto const place = entries.size();
        auto const& below = children[static_cast<std::size_t>(node)];
        int const mesh = topology.nodes.getValue(node).mesh;
        if (place > 0) {
            entries[parent].children.push_back(place);
        }
        entries.push_back({node, false, below.empty() ? mesh : -1, {}});
        if (!below.empty() && mesh >= 0) {
            entries[place].children.push_back(place + 1);
            entries.push_back({node, true, mesh, {}});
        }
        for (auto child = below.rbegin(); child != below.rend(); ++child) {
            pending.push_back({*child, place});
        }
    }
    return entries;
}

} // namespace orvwriter
