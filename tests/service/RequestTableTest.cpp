// The eleven requests as the plug-in hands them to the web classes: class, address, file, and every token in order.

#include "host/orvweb/APIUtils.h"
#include "host/orvweb/WebApiUtils.h"
#include "platform/text/Text.h"
#include "service/CloudHelper.h"
#include "service/FeedRequests.h"
#include "support/ObservedRequests.h"
#include "support/PluginEnvironment.h"
#include "support/RecordingTransport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace
{

using Tokens = std::vector<std::pair<std::wstring, std::wstring>>;

std::wstring const user = L"ada@example.com";
std::wstring const userid = L"0f8fad5b-d9cb-469f-a165-70867728950e";
std::wstring const job = L"7c9e6679-7425-40de-944b-e07fc1f90ae7";
std::wstring const sentFile = L"/models/part.prc"; // needn't exist: nothing is really sent

struct Row {
    char const* name;
    char const* operation;
    std::wstring path;
    char const* ownFile; ///< below the user's data; null for an upload
    Tokens further;      ///< what follows the path, "name", "key" and "username"
    std::function<void()> call;
    std::vector<std::string> exchanges; ///< all that the call makes
    std::size_t place = 0;              ///< of the row's request among them
};

std::wstring hostName()
{
    char bytes[256] = {};
    EXPECT_EQ(gethostname(bytes, sizeof bytes - 1), 0);
    return orvtext::fromUtf8(bytes);
}

std::vector<Row> rows()
{
    auto const signIn = [] { CloudHelper::login(user, L"p+w d"); };
    std::vector<std::string> const signInExchanges{"/api/Login/", "/api/InstalledDevice/"};
    return {
        {"login",
         "Authenticator::login",
         L"/api/Login/",
         "Cloud/temp",
         {{L"password", L"p+w d"}},
         signIn,
         signInExchanges},
        {"installedDevice",
         "Authenticator::login",
         L"/api/InstalledDevice/",
         "Cloud/temp",
         {{L"devicename", hostName()}, {L"devicetype", L"pc"}},
         signIn,
         signInExchanges,
         1},
        {"logout",
         "Authenticator::login",
         L"/api/Logout/",
         "Cloud/temp",
         {{L"tokenID", L"default"}},
         [] { CloudHelper::logout(user); },
         {"/api/Logout/"}},
        {"accountInfo",
         "GetAPI::get",
         L"/api/AccountInfo/",
         "Feed/accountInfo",
         {{L"userid", userid}},
         [] { accountInfo(user, userid); },
         {"/api/AccountInfo/"}},
        {"isFilePresent",
         "GetAPI::get",
         L"/api/isFilePresent/",
         "Feed/isFilePresent",
         {{L"userid", userid}, {L"filename", L"part.step"}},
         [] { isFilePresent(user, userid, L"part.step"); },
         {"/api/isFilePresent/"}},
        {"getFeed",
         "GetAPI::get",
         L"/api/CommentSync/",
         "Feed/getFeed",
         {{L"userid", userid}, {L"jobid", job}},
         [] { getFeed(user, userid, L"/models/part.step", job); },
         {"/api/CommentSync/"}},
        {"addFeed",
         "PostAPI::post",
         L"/api/CommentSync/",
         "Feed/addFeed",
         {{L"userid", userid},
          {L"jobid", job},
          {L"commentid", L"c-1"},
          {L"comment", L"a%2bb"},
          {L"filename", L"part.step"}},
         [] { addFeed(user, userid, L"part.step", L"c-1", L"a+b", job); },
         {"/api/CommentSync/"}},
        {"deleteFeed",
         "PostAPI::post",
         L"/api/DeleteComment/",
         "Feed/deleteFeed",
         {{L"userid", userid}, {L"jobid", job}, {L"commentid", L"c-1"}},
         [] { deleteFeed(user, userid, L"unused", L"c-1", job); },
         {"/api/DeleteComment/"}},
        {"upload",
         "Uploader::uploadFile",
         L"/api/Upload/",
         nullptr,
         {{L"userid", userid}, {L"type", L"orvanta"}, {L"filename", L"part.step"}},
         [] { CloudHelper::upload(L"part.step", sentFile, user, userid, L"orvanta"); },
         {"/api/Upload/"}},
        {"uploadInput",
         "Uploader::uploadFile",
         L"/api/UploadInput/",
         nullptr,
         {{L"userid", userid}, {L"type", L"prc"}, {L"filename", L"part.step"}},
         [] { CloudHelper::uploadInput(L"part.step", sentFile, user, userid, L"prc"); },
         {"/api/UploadInput/"}},
        {"share",
         "Sharer::share",
         L"/api/Share/",
         "Cloud/share",
         {{L"userid", userid}, {L"fileid", job}, {L"shareto", L",a@b.c,,d@e.f,"}, {L"comment", L"a+b"}},
         [] { CloudHelper::share(user, userid, job, L",a@b.c,,d@e.f,", L"a+b"); },
         {"/api/Share/"}},
    };
}

class RequestRecords : public testing::TestWithParam<Row>
{
protected:
    orvtest::PluginEnvironment environment;
    orvtest::RecordingTransport network;
    orvtest::ObservedRequests observed;
};

TEST_P(RequestRecords, HaveTheirClassAddressFileAndTokens)
{
    Row const& row = GetParam();
    for (std::string const& path : row.exchanges) {
        network.expect(path, "the answer");
    }
    row.call();
    ASSERT_EQ(observed.calls.size(), row.exchanges.size());
    orvweb::ObservedRequest const& request = observed.calls[row.place];
    EXPECT_EQ(request.operation, row.operation);
    EXPECT_EQ(request.root, orvweb::APIUtils::rootUrl());
    if (row.ownFile != nullptr) {
        EXPECT_EQ(std::filesystem::path(request.record.file), environment.data / row.ownFile);
    } else {
        EXPECT_EQ(request.record.file, sentFile);
    }
    Tokens all{{row.path, L""},
               {L"name", orvweb::APIUtils::apiId()},
               {L"key", orvweb::APIUtils::apiKey()},
               {L"username", user}};
    all.insert(all.end(), row.further.begin(), row.further.end());
    std::vector<std::vector<std::wstring>> expected;
    for (auto const& [name, value] : all) {
        expected.push_back(orvweb::WebApiUtils::createToken(name, value));
    }
    EXPECT_THAT(request.record.tokens, testing::ElementsAreArray(expected));
}

INSTANTIATE_TEST_SUITE_P(Eleven, RequestRecords, testing::ValuesIn(rows()),
                         [](auto const& row) { return std::string(row.param.name); });

class EmptyTexts : public testing::Test
{
protected:
    orvtest::PluginEnvironment environment;
    orvtest::RecordingTransport network;
    orvtest::ObservedRequests observed;
};

TEST_F(EmptyTexts, AreTokensOfASignOutToo)
{
    network.expect("/api/Logout/");
    CloudHelper::logout(L"");
    ASSERT_EQ(observed.calls.size(), 1U);
    EXPECT_EQ(observed.calls[0].record.tokens.size(), 5U);
    EXPECT_EQ(observed.calls[0].record.tokens[3], orvweb::WebApiUtils::createToken(L"username", L""));
}

TEST_F(EmptyTexts, AreTokensOfASharing)
{
    network.expect("/api/Share/");
    CloudHelper::share(L"", L"", L"", L"", L"");
    ASSERT_EQ(observed.calls.size(), 1U);
    ASSERT_EQ(observed.calls[0].record.tokens.size(), 8U);
    EXPECT_EQ(observed.calls[0].record.tokens[4], orvweb::WebApiUtils::createToken(L"userid", L""));
    EXPECT_EQ(observed.calls[0].record.tokens[7], orvweb::WebApiUtils::createToken(L"comment", L""));
}

} // namespace
