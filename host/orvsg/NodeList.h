#pragma once

#include "host/orvsg/Container.h"

#include <set>
#include <unordered_map>

namespace orvsg
{

/// Nodes in the order in which they were entered; -1 stands for a place that was given up. It remembers where each node
/// stands, so that entering and leaving cost the same however long the list is. Any integer is accepted as a node.
class NodeList final : public Container<int, int>
{
public:
    NodeList() = default;
    /// A plain list is taken as it stands, nodes that occur twice included.
    NodeList(Container<int, int> content); // NOLINT(google-explicit-constructor): the same list, only quicker

    bool holds(int node) const { return places.contains(node); }
    /// A node stands in the list once; the first place that was given up is taken before the list grows.
    void enter(int node);
    /// The node's first place becomes -1.
    void leave(int node);

    void setValue(int key, int const& node);
    void append(int node);
    void clear();

private:
    void note(int place, int node);
    void noteAll();

    std::unordered_map<int, int> places; ///< of each node, the first one
    std::set<int> freePlaces;
};

} // namespace orvsg
