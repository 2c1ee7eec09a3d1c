#pragma once

#include "viewer/app/CommandLine.h"

namespace orvviewer
{

/// Opens the model, writes the exports and the picture, and returns the program's exit status. What goes wrong is a
/// sentence on standard error. Needs no display.
int runHeadless(CommandLine const& line);

} // namespace orvviewer
