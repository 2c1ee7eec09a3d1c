#include "service/CloudHelper.h"

#include "host/orv/Sharer.h"
#include "host/orv/Uploader.h"
#include "service/Request.h"
#include "service/RequestFile.h"

#include <utility>

namespace
{

std::wstring sendFile(std::wstring const& endpoint, std::wstring const& filename, std::wstring const& path,
                      std::wstring const& username, std::wstring const& userid, std::wstring const& type)
{
    orv::OmniInfo request = openRequest(path, endpoint, username);
    addToken(request, L"userid", userid);
    addToken(request, L"type", type);
    addToken(request, L"filename", filename);
    RequestResult const result = runRequest(&orv::Uploader::uploadFile, request);
    return result.code == orv::ErrorCode::none ? result.response : CloudHelper::uploadFailed;
}

} // namespace

CloudHelper::CloudHelper(std::shared_ptr<orvexp::IDelayExporter> delayExporter) : exporter(std::move(delayExporter)) {}

std::wstring CloudHelper::share(std::wstring const& username, std::wstring const& userid, std::wstring const& fileid,
                                std::wstring const& shareto, std::wstring const& comment)
{
    orv::OmniInfo request = openRequest(createRequestFile(L"Cloud", L"share"), L"/api/Share/", username);
    addToken(request, L"userid", userid);
    addToken(request, L"fileid", fileid);
    addToken(request, L"shareto", shareto);
    addToken(request, L"comment", comment);
    return runRequest(&orv::Sharer::share, request).response;
}

std::wstring CloudHelper::upload(std::wstring const& filename, std::wstring const& path, std::wstring const& username,
                                 std::wstring const& userid, std::wstring const& type)
{
    return sendFile(L"/api/Upload/", filename, path, username, userid, type);
}

std::wstring CloudHelper::uploadInput(std::wstring const& filename, std::wstring const& path,
                                      std::wstring const& username, std::wstring const& userid,
                                      std::wstring const& type)
{
    return sendFile(L"/api/UploadInput/", filename, path, username, userid, type);
}
