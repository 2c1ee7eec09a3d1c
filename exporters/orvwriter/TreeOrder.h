#pragma once

#include "host/orvsg/SCSceneTopo.h"

#include <string>
#include <vector>

namespace orvwriter
{

/// A node as the file holds it. A label is an assembly or a part, so geometry of an assembly's own becomes an entry
/// below it.
struct Entry {
    int node = -1;
    bool isOwnGeometry = false; ///< stands for the geometry of `node`, an assembly
    int mesh = -1;
    std::vector<std::size_t> children;
};

/// All nodes, parents before their children in depth-first order; nodes whose parent leads nowhere hang below the root.
std::vector<Entry> entriesOf(orvsg::SCSceneTopo const& topology);

} // namespace orvwriter
