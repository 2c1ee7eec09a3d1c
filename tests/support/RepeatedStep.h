#pragma once

#include <filesystem>

namespace orvtest
{

/// Writes a big assembly of few different parts: the assembly of a STEP file many times over, side by side on a square
/// grid (`pitch` in the file's unit of length), below a root of its own. False where the file holds no assembly that
/// can be taken as one.
bool writeRepeatedStep(std::filesystem::path const& source, int times, double pitch,
                       std::filesystem::path const& target);

} // namespace orvtest
