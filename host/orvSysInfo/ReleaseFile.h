#pragma once

#include <filesystem>

namespace orvSysInfo
{

/// Where GeneralUtils::getOSName reads; an empty path, as at the start, stands for the places where a system keeps its
/// release file.
void setReleaseFile(std::filesystem::path file);

} // namespace orvSysInfo
