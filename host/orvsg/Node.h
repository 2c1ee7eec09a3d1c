#pragma once

#include <string>
#include <vector>

namespace orvsg
{

/// One occurrence in the assembly tree. Nodes are numbered in depth-first order, so a parent stands before its children
/// and the same file gives the same numbers. Node 0 is the root.
struct Node {
    std::wstring name;
    int parent = -1;           ///< -1 for the root
    std::vector<int> children; ///< in the order of the file
    int mesh = -1;             ///< index into SCSceneRes::meshes; -1 for a node without geometry of its own

    bool operator==(Node const&) const = default;
};

} // namespace orvsg
