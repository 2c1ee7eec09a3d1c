#pragma once

#include "host/orvsg/Schema.h"

namespace orvsg
{

/// Product manufacturing information, key 3. The importers read none, so nothing of it adds to a box.
class SCPmi : public Schema
{
public:
    static constexpr short key = 3;
};

} // namespace orvsg
