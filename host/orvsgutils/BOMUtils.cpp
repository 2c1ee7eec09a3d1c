#include "host/orvsgutils/BOMUtils.h"

#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/TreeWalk.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace orvsgutils
{

namespace
{

std::vector<int> childrenOf(orvsg::SCSceneTopo const& topology, int node)
{
    std::vector<int> children;
    for (int const child : topology.nodes.getValue(node).children) {
        if (parentOf(topology, child) == node) {
            children.push_back(child);
        }
    }
    return children;
}

/// What each occurrence is, as a number: two have the same one when they carry one name and one geometry and hold the
/// same items equally often. The name alone won't do: a revision of an assembly often keeps it.
std::vector<int> itemsOf(orvsg::SCSceneTopo const& topology)
{
    using Contents = std::tuple<std::wstring, int, std::vector<int>>;
    std::map<Contents, int> known;
    std::vector<int> items(topology.nodes.size());
    for (int node = static_cast<int>(items.size()) - 1; node >= 0; --node) { // children stand behind their parents
        std::vector<int> held;
        for (int const child : childrenOf(topology, node)) {
            held.push_back(items[static_cast<std::size_t>(child)]);
        }
        std::sort(held.begin(), held.end());
        auto const& record = topology.nodes.getValue(node);
        auto const next = static_cast<int>(known.size());
        items[static_cast<std::size_t>(node)] =
            known.try_emplace({record.name, record.mesh, std::move(held)}, next).first->second;
    }
    return items;
}

struct Group {
    int first; ///< the first occurrence, which stands for all
    int quantity;
};

/// The nodes, all of them in the tree, item by item.
std::vector<Group> groupsOf(std::vector<int> const& items, std::vector<int> const& nodes)
{
    std::vector<Group> groups;
    std::map<int, std::size_t> places;
    for (int const node : nodes) {
        auto const [place, isNew] = places.try_emplace(items[static_cast<std::size_t>(node)], groups.size());
        if (isNew) {
            groups.push_back({node, 1});
        } else {
            ++groups[place->second].quantity;
        }
    }
    return groups;
}

/// The tree, each item below its parent.
std::vector<orvsg::BomItem> assemblyLevel(orvsg::SCSceneTopo const& topology)
{
    struct Pending {
        Group group;
        int level;
    };
    auto const numbers = itemsOf(topology);
    std::vector<orvsg::BomItem> items;
    std::vector<Pending> pending;
    auto const enterChildren = [&](int node, int level) {
        std::vector<Group> const groups = groupsOf(numbers, childrenOf(topology, node));
        for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
            pending.push_back({*group, level});
        }
    };
    enterChildren(0, 0);
    while (!pending.empty()) {
        Pending const next = pending.back();
        pending.pop_back();
        items.push_back({topology.nodes.getValue(next.group.first).name, next.level, next.group.quantity});
        enterChildren(next.group.first, next.level + 1);
    }
    return items;
}

/// All parts of the model in one list, counted over the whole tree.
std::vector<orvsg::BomItem> partLevel(orvsg::SCSceneTopo const& topology)
{
    std::vector<int> parts;
    for (int node = 0; topology.nodes.contains(node); ++node) {
        if (childrenOf(topology, node).empty()) {
            parts.push_back(node);
        }
    }
    std::vector<orvsg::BomItem> items;
    for (Group const& group : groupsOf(itemsOf(topology), parts)) {
        items.push_back({topology.nodes.getValue(group.first).name, 0, group.quantity});
    }
    return items;
}

} // namespace

void BOMUtils::createBOM(std::shared_ptr<orvsg::SCSceneTopo> topology, std::shared_ptr<orvsg::SCBom> bom,
                         int const& level)
{
    if (!bom) {
        return;
    }
    bom->reportLevel = level;
    if (!topology || topology->nodes.size() == 0) {
        bom->items.clear();
        return;
    }
    std::vector<orvsg::BomItem> items = level == 0 ? partLevel(*topology) : assemblyLevel(*topology);
    // A model of a single part has nothing below its root: the root is the item.
    if (items.empty()) {
        items.push_back({topology->nodes.getValue(0).name, 0, 1});
    }
    bom->items = std::move(items);
}

} // namespace orvsgutils
