#include "service/FeedRequests.h"

#include "host/orv/GetAPI.h"
#include "host/orv/PostAPI.h"
#include "platform/text/Text.h"
#include "service/ReplaceAll.h"
#include "service/Request.h"
#include "service/RequestFile.h"

namespace
{

/// A request that is made in the name of a signed-in user and has an own file of the function's name.
orv::OmniInfo openFeedRequest(std::wstring const& name, std::wstring const& endpoint, std::wstring const& username,
                              std::wstring const& userid)
{
    orv::OmniInfo request = openRequest(createRequestFile(L"Feed", name), endpoint, username);
    addToken(request, L"userid", userid);
    return request;
}

/// Plus signs as "%2b", which the service undoes. The text goes through single bytes on its way, so a character above
/// U+00FF loses its high bits and one above U+007F comes out as U+FF80 or above; the texts of FeedWriter hold neither.
std::wstring escapePlusSigns(std::wstring const& comment)
{
    return orvtext::widenSignExtended(replaceAll(orvtext::narrowLowBytes(comment), "+", "%2b"));
}

} // namespace

std::wstring accountInfo(std::wstring const& username, std::wstring const& userid)
{
    orv::OmniInfo const request = openFeedRequest(L"accountInfo", L"/api/AccountInfo/", username, userid);
    return runRequest(&orv::GetAPI::get, request).response;
}

std::wstring isFilePresent(std::wstring const& username, std::wstring const& userid, std::wstring const& filename)
{
    orv::OmniInfo request = openFeedRequest(L"isFilePresent", L"/api/isFilePresent/", username, userid);
    addToken(request, L"filename", filename);
    return runRequest(&orv::GetAPI::get, request).response;
}

std::wstring getFeed(std::wstring const& username, std::wstring const& userid, std::wstring const& /*filePath*/,
                     std::wstring const& jobid)
{
    orv::OmniInfo request = openFeedRequest(L"getFeed", L"/api/CommentSync/", username, userid);
    addToken(request, L"jobid", jobid);
    return runRequest(&orv::GetAPI::get, request).response;
}

std::wstring addFeed(std::wstring const& username, std::wstring const& userid, std::wstring const& filename,
                     std::wstring const& commentid, std::wstring const& comment, std::wstring const& jobid)
{
    orv::OmniInfo request = openFeedRequest(L"addFeed", L"/api/CommentSync/", username, userid);
    addToken(request, L"jobid", jobid);
    addToken(request, L"commentid", commentid);
    addToken(request, L"comment", escapePlusSigns(comment));
    addToken(request, L"filename", filename);
    return runRequest(&orv::PostAPI::post, request).response;
}

std::wstring deleteFeed(std::wstring const& username, std::wstring const& userid, std::wstring const& /*unused*/,
                        std::wstring const& commentid, std::wstring const& jobid)
{
    orv::OmniInfo request = openFeedRequest(L"deleteFeed", L"/api/DeleteComment/", username, userid);
    addToken(request, L"jobid", jobid);
    addToken(request, L"commentid", commentid);
    return runRequest(&orv::PostAPI::post, request).response;
}
