#pragma once

#include <string>

namespace orvweb
{

/// The user's directories.
class Directories
{
public:
    /// The user's directory of that name (and of `sub` below it, unless empty), without a closing separator. It is made
    /// on demand, for the user alone. The path comes back even where the directory can't be made.
    static std::wstring GetUserDirectoryDetails(std::wstring const& name, std::wstring const& sub);
};

} // namespace orvweb
