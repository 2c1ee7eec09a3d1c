#pragma once

#include <string>

namespace orvSysInfo
{

/// What a support request says of the machine.
class GeneralUtils
{
public:
    static std::wstring getApplicationInfo(); ///< name and version of the viewer
    static std::wstring getSystemInfo();      ///< kernel and processor architecture
    static std::wstring getHostID();          ///< an opaque id of this installation; says nothing of the user
    static std::wstring getSignature();       ///< the build's compiler and date of release

    /// The system's full name and its version; false where the system doesn't tell.
    static bool getOSName(std::wstring& name, std::wstring& version);

    /// One mail body out of the pieces, a line each; empty pieces are left out.
    static std::wstring compileSystemInfo(std::wstring const& application, std::wstring const& system,
                                          std::wstring const& hostId, std::wstring const& signature,
                                          std::wstring const& remark);
};

} // namespace orvSysInfo
