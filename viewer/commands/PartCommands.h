#pragma once

#include "viewer/commands/CommandContext.h"

/// What a reviewer does to parts. Nodes outside the model are ignored; without a document nothing happens. A node with
/// children stands for all below it.
namespace orvviewer
{

void hideNodes(CommandContext& context, std::set<int> const& nodes);
void showNodes(CommandContext& context, std::set<int> const& nodes); ///< with what is above and below them
void isolateNodes(CommandContext& context, std::set<int> const& nodes);
void showAllNodes(CommandContext& context);
void colourNodes(CommandContext& context, std::set<int> const& nodes, unsigned long packedColor);
/// Takes the user's colour off again.
void uncolourNodes(CommandContext& context, std::set<int> const& nodes);
/// 0 opaque to 1 invisible.
void makeTransparent(CommandContext& context, std::set<int> const& nodes, float transparency);
/// Moves by millimetres along the model's axes, in addition to earlier moves. A node below another of the set goes with
/// that one.
void moveNodes(CommandContext& context, std::set<int> const& nodes, double x, double y, double z);
/// Shows all nodes, and brings their colours, transparency and placements back to what the file says.
void resetNodes(CommandContext& context);

} // namespace orvviewer
