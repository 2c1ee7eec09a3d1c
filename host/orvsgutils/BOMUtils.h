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
    /// Fills the bill of materials from the assembly tree and sets its report level. An empty pointer changes nothing.
    static void createBOM(std::shared_ptr<orvsg::SCSceneTopo> topology, std::shared_ptr<orvsg::SCBom> bom,
                          int const& level);
};

} // namespace orvsgutils
