#pragma once

#include <string>

namespace orv
{

/// Files and directories of the viewer.
class FileUtils
{
public:
    static std::wstring getTempPath(); ///< the temporary directory of this run, with a closing separator; exists
    static bool
    getAppDataPath(std::wstring& path); ///< the user's application data, no closing separator; exists when true
    static std::wstring
    getStatusFileName(wchar_t const* path); ///< the name under which a saved file is reported: name and extension

    /// The one way to join a directory and a name: exactly one separator stands between them.
    static std::wstring join(std::wstring const& directory, std::wstring const& name);
};

} // namespace orv
