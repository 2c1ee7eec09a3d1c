#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace orvtest
{

/// How often each product without components occurs in the assembly that a STEP file describes, by the product's name.
/// Found in the file's text alone: products, and what is used in what (NEXT_ASSEMBLY_USAGE_OCCURRENCE).
std::map<std::string, int> countedInStep(std::filesystem::path const& file);

} // namespace orvtest
