#pragma once

#include "host/orvsg/Schema.h"

#include <string>
#include <vector>

namespace orvsg
{

/// One line of a bill of materials.
struct BomItem {
    std::wstring name;
    int level = 0;    ///< depth in the assembly tree, 0 for the root's children and for every item of the part level
    int quantity = 0; ///< how often it occurs: under its parent, or in the whole model at part level

    bool operator==(BomItem const&) const = default;
};

/// Bill of materials.
class SCBom : public Schema
{
public:
    static short const BOM; ///< the record's key

    int reportLevel = 0; ///< 0 part level: all parts in one list; 1 assembly level: the tree
    std::vector<BomItem> items;
};

} // namespace orvsg
