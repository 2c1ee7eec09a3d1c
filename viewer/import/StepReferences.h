#pragma once

#include <string>

namespace orvviewer
{

/// True where every entity that a STEP file refers to is in it. The kernel's reader takes that for granted and would
/// follow a reference into the void. Also false for a file that can't be read.
bool hasAllReferences(std::string const& utf8Path);

} // namespace orvviewer
