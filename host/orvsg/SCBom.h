#pragma once

#include "host/orvsg/Schema.h"

#include <string>
#include <vector>

namespace orvsg
{

/// One line of a bill of materials.
struct BomItem {
    std::wstring name;
    int level = 0;    ///< depth in the assembly tree, 0 for the root's children
    int quantity = 0; ///< how often the part or assembly occurs under its parent

    bool operator==(BomItem const&) const = default;
};

/// Bill of materials.
class SCBom : public Schema
{
public:
    static short const BOM; ///< the record's key

    int reportLevel = 0; ///< 0 part level, 1 assembly level
    std::vector<BomItem> items;
};

} // namespace orvsg
