#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/orvexp/IDelayExporter.h"
#include "host/orvweb/UserInfo.h"

#include <memory>
#include <string>

/// Signs in and out, sends models and shares them. Every operation blocks until the service has answered. None throws
/// for a failure of the service or touches the orvweb::UserInfo; the requests show no message.
class CloudHelper
{
public:
    /// What the uploads and the pushes answer on failure; compared exactly.
    static constexpr wchar_t uploadFailed[] = L"failed";
    /// What logout answers on failure; compared exactly.
    static constexpr wchar_t logoutFailed[] = L"Failed";

    /// `delayExporter` writes what pushDirect sends.
    explicit CloudHelper(std::shared_ptr<orvexp::IDelayExporter> delayExporter);

    /// Gives the service's answer, which is the login token where it has exactly 36 characters (isLoginToken), or an
    /// empty text where the request failed. Starts the session file with two lines and registers this computer.
    static std::wstring login(std::wstring const& username, std::wstring const& password);

    /// Gives the service's answer, maybe empty, or "Failed". The session file is emptied before the service is asked,
    /// and removed once it has answered.
    static std::wstring logout(std::wstring const& username);

    /// Invites `shareto`, addresses as the user typed them, to the model `fileid`, a job id.
    static std::wstring share(std::wstring const& username, std::wstring const& userid, std::wstring const& fileid,
                              std::wstring const& shareto, std::wstring const& comment);

    /// Sends the file at `path` as the model `filename`. `type` says what it is: "orvanta" or "png" for upload, "prc"
    /// for uploadInput. Gives the model's job id, or "failed".
    static std::wstring upload(std::wstring const& filename, std::wstring const& path, std::wstring const& username,
                               std::wstring const& userid, std::wstring const& type);
    static std::wstring uploadInput(std::wstring const& filename, std::wstring const& path,
                                    std::wstring const& username, std::wstring const& userid, std::wstring const& type);

    /// Converts the open model and sends it, with messages and progress. Gives the job id, or "failed"; a model without
    /// a file gives "failed" without a word.
    std::wstring pushDirect(std::shared_ptr<orv::IDocument> const& document,
                            std::shared_ptr<orvweb::UserInfo> userInfo);

    /// Sends the open model in the native format and its preview picture. Gives the answer to the preview, or "failed".
    std::wstring pushWithPreview(std::shared_ptr<orv::IDocument> const& document,
                                 std::shared_ptr<orv::IApplication> application,
                                 std::shared_ptr<orvweb::UserInfo> userInfo);

private:
    std::shared_ptr<orvexp::IDelayExporter> exporter;
};
