#pragma once

#include "host/orvsg/Container.h"

#include <cstddef>
#include <set>
#include <unordered_map>

namespace orvsg
{

/// Nodes in the order in which they were entered; -1 stands for a place that was given up. It remembers where each node
/// stands, so that entering and leaving cost the same however long the list is. Any integer is accepted as a node. It
/// reads like the container that it stands for, and is one wherever a container is read; it changes here alone, since
/// a change behind its back would leave it remembering other places.
class NodeList final
{
public:
    using List = Container<int, int>;
    using const_iterator = List::const_iterator;

    NodeList() = default;
    /// A plain list is taken as it stands, nodes that occur twice included.
    NodeList(List content);                        // NOLINT(google-explicit-constructor): the same list, only quicker
    operator List const&() const { return nodes; } // NOLINT(google-explicit-constructor): see above

    std::size_t size() const { return nodes.size(); }
    bool contains(int key) const { return nodes.contains(key); }
    int const& getValue(int key) const { return nodes.getValue(key); }
    const_iterator begin() const { return nodes.begin(); }
    const_iterator end() const { return nodes.end(); }

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

    List nodes;
    std::unordered_map<int, int> places; ///< of each node, the first one
    std::set<int> freePlaces;
};

} // namespace orvsg
