#pragma once

#include "viewer/commands/CommandContext.h"

namespace orvtest
{

/// Brings the open model into a state of a reviewer's making that depends on the seed alone: about a tenth of the nodes
/// hidden, a twentieth coloured and a twentieth half transparent, a hundredth moved, one of each at least, and the
/// camera anywhere around. What was hidden, coloured or moved before stays where the seed doesn't say otherwise.
void arrangeRandomView(orvviewer::CommandContext& context, unsigned int seed);

} // namespace orvtest
