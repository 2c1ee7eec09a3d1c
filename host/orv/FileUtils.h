#pragma once

#include <string>

namespace orv
{

/// Files and directories of the viewer.
class FileUtils
{
public:
    /// The temporary directory of this run, with a closing separator; it exists.
    static std::wstring getTempPath();
    /// The user's application data, without a closing separator; it exists where the answer is true.
    static bool getAppDataPath(std::wstring& path);
    /// The name under which a saved file is reported: name and extension.
    static std::wstring getStatusFileName(wchar_t const* path);

    /// The one way to join a directory and a name: exactly one separator stands between them.
    static std::wstring join(std::wstring const& directory, std::wstring const& name);
};

} // namespace orv
