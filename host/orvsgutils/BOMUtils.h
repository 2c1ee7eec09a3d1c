#pragma once

#include <memory>

namespace orvsg
{
class SCBom;
class SCSceneTopo;
} // namespace orvsg

namespace orvsgutils
{

class BOMUtils
{
public:
    /// Fills the bill of materials from the assembly tree for a report level (SCBom::reportLevel) and notes the level
    /// in it. Who writes a report calls it with the level that the record then carries. Occurrences share a row
    /// when they are the same in name, geometry and all that they hold, so that a row's parts are those of each of its
    /// occurrences. An empty pointer changes nothing.
    static void createBOM(std::shared_ptr<orvsg::SCSceneTopo> topology, std::shared_ptr<orvsg::SCBom> bom,
                          int const& level);
};

} // namespace orvsgutils
