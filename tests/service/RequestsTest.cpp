#include "host/orvweb/APIUtils.h"
#include "host/orvweb/WebApiUtils.h"
#include "platform/text/Text.h"
#include "service/AccountName.h"
#include "service/CloudHelper.h"
#include "service/FeedRequests.h"
#include "service/JobId.h"
#include "service/Request.h"
#include "support/PluginEnvironment.h"
#include "support/RecordingTransport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <json/json.h>

#include <filesystem>
#include <functional>
#include <string>
#include <system_error>
#include <vector>

using orvtest::RecordingTransport;
using orvweb::HttpRequest;
using testing::ElementsAreArray;

namespace
{

using Fields = std::vector<HttpRequest::Field>;

std::wstring const user = L"ada@example.com";
std::wstring const token = L"0f8fad5b-d9cb-469f-a165-70867728950e";
std::wstring const job = L"7c9e6679-7425-40de-944b-e07fc1f90ae7";

struct RequestCase {
    char const* name;
    std::function<std::wstring()> call;
    char const* path;
    HttpRequest::Kind kind;
    bool hasUserId;
    Fields further; ///< what follows "name" and "username"
    char const* ownFile;
};

class RequestTable : public testing::TestWithParam<RequestCase>
{
protected:
    orvtest::PluginEnvironment environment;
};

TEST_P(RequestTable, SendsItsTokensInOrder)
{
    RequestCase const& request = GetParam();
    RecordingTransport network;
    network.expect(request.path, "the answer");
    EXPECT_EQ(request.call(), L"the answer");

    auto const& sent = network.last();
    EXPECT_EQ(sent.request.kind, request.kind);
    Fields expected{{"name", orvtext::toUtf8(orvweb::APIUtils::apiId())}, {"username", "ada@example.com"}};
    expected.insert(expected.end(), request.further.begin(), request.further.end());
    EXPECT_THAT(sent.request.fields, ElementsAreArray(expected));
    EXPECT_EQ(sent.header("X-Api-Key"), orvtext::toUtf8(orvweb::APIUtils::apiKey()));
    EXPECT_EQ(sent.header("Authorization"), request.hasUserId ? "Bearer " + orvtext::toUtf8(token) : std::string());
}

TEST_P(RequestTable, LeavesItsOwnFileBehindEmptyAndNoOther)
{
    RequestCase const& request = GetParam();
    std::vector<std::filesystem::path> expected;
    if (request.ownFile != nullptr) {
        expected.push_back(environment.data / request.ownFile);
        orvtest::writeFile(expected[0], "left by an earlier request");
    }
    RecordingTransport network;
    network.expectHandled(request.path, [&](orvtest::SentRequest const&) {
        for (std::filesystem::path const& file : expected) {
            EXPECT_EQ(orvtest::contentOf(file), "") << "emptied before the service is asked";
        }
        return orvweb::HttpResponse{orv::ErrorCode::none, 200, "ok"};
    });
    request.call();
    std::vector<std::filesystem::path> found;
    for (std::filesystem::path const& folder : {environment.cloud(), environment.feed()}) {
        std::error_code missing;
        for (auto const& entry : std::filesystem::directory_iterator(folder, missing)) {
            found.push_back(entry.path());
            EXPECT_EQ(entry.file_size(), 0U);
        }
    }
    EXPECT_THAT(found, ElementsAreArray(expected));
}

std::wstring sendModel(std::wstring (*operation)(std::wstring const&, std::wstring const&, std::wstring const&,
                                                 std::wstring const&, std::wstring const&),
                       wchar_t const* type)
{
    std::filesystem::path const file = std::filesystem::path(orvhost::settings().dataDirectory) / "part.prc";
    orvtest::writeFile(file, "PRC");
    return operation(L"part.step", file.wstring(), user, token, type);
}

INSTANTIATE_TEST_SUITE_P(
    All, RequestTable,
    testing::Values(
        RequestCase{"accountInfo",
                    [] { return accountInfo(user, token); },
                    "/api/AccountInfo/",
                    HttpRequest::Kind::get,
                    true,
                    {},
                    "Feed/accountInfo"},
        RequestCase{"isFilePresent",
                    [] { return isFilePresent(user, token, L"part.step"); },
                    "/api/isFilePresent/",
                    HttpRequest::Kind::get,
                    true,
                    {{"filename", "part.step"}},
                    "Feed/isFilePresent"},
        RequestCase{"getFeed",
                    [] { return getFeed(user, token, L"/models/part.step", job); },
                    "/api/CommentSync/",
                    HttpRequest::Kind::get,
                    true,
                    {{"jobid", orvtext::toUtf8(job)}},
                    "Feed/getFeed"},
        RequestCase{
            "addFeed",
            [] { return addFeed(user, token, L"part.step", L"c-1", L"{}", job); },
            "/api/CommentSync/",
            HttpRequest::Kind::form,
            true,
            {{"jobid", orvtext::toUtf8(job)}, {"commentid", "c-1"}, {"comment", "{}"}, {"filename", "part.step"}},
            "Feed/addFeed"},
        RequestCase{"deleteFeed",
                    [] { return deleteFeed(user, token, L"unused", L"c-1", job); },
                    "/api/DeleteComment/",
                    HttpRequest::Kind::form,
                    true,
                    {{"jobid", orvtext::toUtf8(job)}, {"commentid", "c-1"}},
                    "Feed/deleteFeed"},
        RequestCase{"upload",
                    [] { return sendModel(&CloudHelper::upload, L"orvanta"); },
                    "/api/Upload/",
                    HttpRequest::Kind::multipart,
                    true,
                    {{"type", "orvanta"}, {"filename", "part.step"}},
                    nullptr},
        RequestCase{"uploadInput",
                    [] { return sendModel(&CloudHelper::uploadInput, L"prc"); },
                    "/api/UploadInput/",
                    HttpRequest::Kind::multipart,
                    true,
                    {{"type", "prc"}, {"filename", "part.step"}},
                    nullptr},
        RequestCase{"share",
                    [] { return CloudHelper::share(user, token, job, L",a@b.c,,d@e.f,", L"a+b"); },
                    "/api/Share/",
                    HttpRequest::Kind::formOnce,
                    true,
                    {{"fileid", orvtext::toUtf8(job)}, {"shareto", ",a@b.c,,d@e.f,"}, {"comment", "a+b"}},
                    "Cloud/share"}),
    [](auto const& request) { return request.param.name; });

class Requests : public testing::Test
{
protected:
    orvtest::PluginEnvironment environment;
    RecordingTransport network;

    /// What addFeed makes of a comment.
    std::string commentSentFor(std::wstring const& comment)
    {
        network.expect("/api/CommentSync/");
        addFeed(user, token, L"part.step", L"c-1", comment, job);
        return network.last().field("comment");
    }
};

TEST_F(Requests, OpenWithFourTokens)
{
    orv::OmniInfo const request = openRequest(L"file", L"/api/Login/", user);
    EXPECT_EQ(request.file, L"file");
    using orvweb::WebApiUtils;
    EXPECT_THAT(request.tokens, ElementsAreArray({WebApiUtils::createToken(L"/api/Login/", L""),
                                                  WebApiUtils::createToken(L"name", orvweb::APIUtils::apiId()),
                                                  WebApiUtils::createToken(L"key", orvweb::APIUtils::apiKey()),
                                                  WebApiUtils::createToken(L"username", user)}));
}

TEST_F(Requests, SendAnEmptyOptionalTextAsToken)
{
    network.expect("/api/Share/");
    CloudHelper::share(user, token, job, L"a@b.c", L"");
    auto const& fields = network.last().request.fields;
    ASSERT_FALSE(fields.empty());
    EXPECT_EQ(fields.back(), (HttpRequest::Field{"comment", ""}));
}

TEST_F(Requests, OfTheSameKindReplaceTheFileOfTheOneBefore)
{
    network.expect("/api/isFilePresent/");
    isFilePresent(user, token, L"part.step");
    orvtest::writeFile(environment.feed("isFilePresent"), "left there");
    network.expect("/api/isFilePresent/");
    isFilePresent(user, token, L"part.step");
    EXPECT_EQ(orvtest::contentOf(environment.feed("isFilePresent")), "");
}

TEST_F(Requests, OfTheFeedThatFailGiveAnEmptyText)
{
    network.expectFailure("/api/AccountInfo/");
    EXPECT_EQ(accountInfo(user, token), L"");
    network.expectFailure("/api/isFilePresent/");
    EXPECT_EQ(isFilePresent(user, token, L"part.step"), L"");
    network.expectFailure("/api/CommentSync/");
    EXPECT_EQ(getFeed(user, token, L"/models/part.step", job), L"");
    network.expectFailure("/api/CommentSync/");
    EXPECT_EQ(addFeed(user, token, L"part.step", L"c-1", L"{}", job), L"");
    network.expectFailure("/api/DeleteComment/");
    EXPECT_EQ(deleteFeed(user, token, L"", L"c-1", job), L"");
    network.expectFailure("/api/Share/");
    EXPECT_EQ(CloudHelper::share(user, token, job, L"a@b.c", L""), L"");
}

TEST_F(Requests, ForUploadsThatFailGiveTheFailureWord)
{
    network.expectFailure("/api/Upload/");
    EXPECT_EQ(sendModel(&CloudHelper::upload, L"orvanta"), L"failed");
    network.expectFailure("/api/UploadInput/");
    EXPECT_EQ(sendModel(&CloudHelper::uploadInput, L"prc"), L"failed");
}

TEST_F(Requests, ForUploadsSendTheFileThatTheyAreGiven)
{
    network.expect("/api/UploadInput/", "job");
    sendModel(&CloudHelper::uploadInput, L"prc");
    EXPECT_TRUE(network.last().hadFile);
    EXPECT_EQ(network.last().fileContent, "PRC");
}

TEST_F(Requests, GoThroughWithoutAFileOfTheirOwn)
{
    // A folder of that name stands in the file's way.
    std::filesystem::create_directories(environment.feed("isFilePresent"));
    network.expect("/api/isFilePresent/", "answer");
    EXPECT_EQ(isFilePresent(user, token, L"part.step"), L"answer");
}

TEST_F(Requests, SendACommentWithoutPlusSignsUnchanged)
{
    EXPECT_EQ(commentSentFor(L"{\"a\":\"b c\",\"d\":[1.0]}\n"), "{\"a\":\"b c\",\"d\":[1.0]}\n");
}

TEST_F(Requests, EscapePlusSignsUpToTheEndOfAComment)
{
    EXPECT_EQ(commentSentFor(L"a+b+"), "a%2bb%2b");
}

TEST_F(Requests, LeaveAnEscapeThatIsTextAlone)
{
    EXPECT_EQ(commentSentFor(L"50%2b"), "50%2b");
}

TEST_F(Requests, WidenACommentsBytesBySignExtension)
{
    EXPECT_EQ(commentSentFor(L"caf\u00e9"), orvtext::toUtf8(L"caf\uffe9"));
    EXPECT_EQ(commentSentFor(L"\u0141"), "A") << "the high bits are lost";
    EXPECT_EQ(commentSentFor(L"\U0001f600"), orvtext::toUtf8(std::wstring(L"=") + L'\0')) << "two 16-bit characters";
}

TEST(JobId, IsToldByItsLengthAlone)
{
    EXPECT_FALSE(isJobId(std::wstring(35, L'x')));
    EXPECT_TRUE(isJobId(std::wstring(36, L' ')));
    EXPECT_TRUE(isJobId(std::wstring(200, L'x')));
    EXPECT_FALSE(isJobId(L""));
}

TEST(LoginToken, HasExactly36CharactersOfAnyContent)
{
    EXPECT_FALSE(isLoginToken(std::wstring(35, L'x')));
    EXPECT_TRUE(isLoginToken(std::wstring(36, L'?')));
    EXPECT_FALSE(isLoginToken(std::wstring(37, L'x')));
}

TEST(AccountName, IsReadFromTheAnswersBytes)
{
    std::wstring name = L"before";
    EXPECT_TRUE(readAccountName(orvtext::widenBytes("{\"name\":\"J\xC3\xBCrgen\",\"email\":\"j@e.x\"}"), name));
    EXPECT_EQ(name, L"J\u00fcrgen");
}

TEST(AccountName, IsEmptyWithoutAName)
{
    std::wstring name = L"before";
    EXPECT_TRUE(readAccountName(L"{}", name));
    EXPECT_EQ(name, L"");
}

TEST(AccountName, StaysWhereTheAnswerIsNotJson)
{
    std::wstring name = L"before";
    EXPECT_FALSE(readAccountName(L"", name));
    EXPECT_FALSE(readAccountName(L"<html>", name));
    EXPECT_EQ(name, L"before");
}

TEST(AccountName, StaysWhereTheAnswerIsNoObjectOrTheNameHasNoTextForm)
{
    std::wstring name = L"before";
    for (std::wstring const& answer :
         {std::wstring(L"null"), std::wstring(L"5"), std::wstring(L"true"), std::wstring(L"\"Ann\""),
          std::wstring(L"[]"), std::wstring(L"[{\"name\":\"Ann\"}]"), std::wstring(L"{\"name\":[]}"),
          std::wstring(L"{\"name\":{\"first\":\"Ann\"}}"), std::wstring(5000, L'[')}) {
        EXPECT_FALSE(readAccountName(answer, name)) << answer.substr(0, 40);
        EXPECT_EQ(name, L"before");
    }
}

TEST(AccountName, OfAnyOtherKindIsItsText)
{
    std::wstring name = L"before";
    EXPECT_TRUE(readAccountName(L"{\"name\":42}", name));
    EXPECT_EQ(name, L"42");
    EXPECT_TRUE(readAccountName(L"{\"name\":true}", name));
    EXPECT_EQ(name, L"true");
    EXPECT_TRUE(readAccountName(L"{\"name\":null}", name));
    EXPECT_EQ(name, L"");
}

} // namespace
