// The eleven requests through the plug-in's own operations, against the real service over a database of its own.

#include "host/orvweb/CurlTransport.h"
#include "platform/text/Text.h"
#include "service/AccountName.h"
#include "service/CloudHelper.h"
#include "service/FeedRequests.h"
#include "service/JobId.h"
#include "support/PluginEnvironment.h"
#include "support/RealService.h"

#include "cloud/store/SqliteStore.h"

#include <gmock/gmock.h>
#include <json/json.h>

#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

using orvtest::contentOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

std::wstring const ann = L"ann@example.org";
std::wstring const password = L"ann's password";
std::wstring const model = L"gear box+1 \u00e9.step";

class AtService : public testing::Test
{
protected:
    AtService() : before(orvweb::setTransport(std::make_shared<orvweb::CurlTransport>()))
    {
        environment.setService(service.wideUrl());
    }
    ~AtService() override { orvweb::setTransport(before); }

    std::wstring signIn()
    {
        std::wstring const token = CloudHelper::login(ann, password);
        EXPECT_TRUE(isLoginToken(token)) << orvtext::toUtf8(token);
        return token;
    }
    std::wstring send(std::wstring const& token, std::string const& content,
                      decltype(&CloudHelper::upload) operation = &CloudHelper::uploadInput,
                      wchar_t const* type = L"prc")
    {
        std::filesystem::path const file = environment.data / "sent.prc";
        orvtest::writeFile(file, content);
        return operation(model, file.wstring(), ann, token, type);
    }
    static Json::Value parsed(std::wstring const& answer)
    {
        Json::Value root;
        std::string const text = orvtext::narrowLowBytes(answer);
        Json::CharReaderBuilder const builder;
        std::unique_ptr<Json::CharReader> const reader(builder.newCharReader());
        std::string errors;
        EXPECT_TRUE(reader->parse(text.data(), text.data() + text.size(), &root, &errors)) << text << errors;
        return root;
    }
    /// The texts of a feed's comments without the entries that the service makes by itself.
    std::vector<std::string> commentsOf(std::wstring const& token, std::wstring const& job)
    {
        std::vector<std::string> texts;
        for (Json::Value const& element : parsed(getFeed(ann, token, L"/models/part.step", job))) {
            Json::Value const record = parsed(orvtext::widenBytes(element["Content"].asString()));
            if (record["comment"]["id"].asString() == "c-1") {
                texts.push_back(record["comment"]["value"].asString());
            }
        }
        return texts;
    }
    static std::wstring recordWith(std::wstring const& text)
    {
        return L"{\"comment\":{\"id\":\"c-1\",\"value\":\"" + text + L"\"},\"commentType\":\"user\"}\n";
    }
    std::filesystem::path jar() const { return environment.data / "session-cookie"; }

    orvtest::RealService service;
    orvtest::PluginEnvironment environment;
    std::shared_ptr<orvweb::ITransport> before;
};

TEST_F(AtService, ALoginStartsTheSessionAndRegistersTheComputer)
{
    std::wstring const token = signIn();
    EXPECT_EQ(contentOf(environment.session()), "ann@example.org\n" + orvtext::toUtf8(token) + "\n");
    service.stop();
    auto const store = orvcloud::openSqliteStore(service.config.dataDirectory);
    auto const account = store->findAccount("ann@example.org");
    ASSERT_TRUE(account);
    auto const devices = store->devicesOf(account->id);
    char computer[256] = {};
    ASSERT_EQ(::gethostname(computer, sizeof computer - 1), 0);
    ASSERT_THAT(devices, SizeIs(1));
    EXPECT_EQ(devices[0].name, computer);
    EXPECT_EQ(devices[0].type, "pc");
}

TEST_F(AtService, AWrongPasswordIsAnEmptyResultAndNoSession)
{
    EXPECT_EQ(CloudHelper::login(ann, L"wrong"), L"");
    EXPECT_FALSE(std::filesystem::exists(environment.cloud()));
    EXPECT_EQ(CloudHelper::login(L"", L""), L"");
    EXPECT_EQ(CloudHelper::login(ann, std::wstring(10000, L'x')), L"");
}

TEST_F(AtService, TheAccountsNameIsItsUsers)
{
    std::wstring name;
    EXPECT_TRUE(readAccountName(accountInfo(ann, signIn()), name));
    EXPECT_EQ(name, L"\u00c4ann");
}

TEST_F(AtService, AModelKeepsTheJobIdThatItsFirstUploadGave)
{
    std::wstring const token = signIn();
    EXPECT_EQ(isFilePresent(ann, token, model), L"");
    std::wstring const job = send(token, "PRC 1");
    EXPECT_TRUE(isJobId(job)) << orvtext::toUtf8(job);
    EXPECT_EQ(isFilePresent(ann, token, model), job);
    EXPECT_EQ(send(token, "PRC 2"), job);
    EXPECT_EQ(send(token, "native", &CloudHelper::upload, L"orvanta"), job);
    EXPECT_EQ(send(token, "\x89PNG\r\n\x1a\n", &CloudHelper::upload, L"png"), job);
    EXPECT_EQ(isFilePresent(ann, token, L"another.step"), L"");
}

TEST_F(AtService, ACommentComesBackAsItWasWritten)
{
    std::wstring const token = signIn();
    std::wstring const job = send(token, "PRC");
    EXPECT_THAT(commentsOf(token, job), IsEmpty());
    EXPECT_EQ(addFeed(ann, token, model, L"c-1", recordWith(L"1+1=2 & 50% \\u00e9 \\\\"), job), L"ok");
    EXPECT_THAT(commentsOf(token, job), ElementsAre("1+1=2 & 50% \xC3\xA9 \\"));
    EXPECT_EQ(addFeed(ann, token, model, L"c-1", recordWith(L"+"), job), L"ok") << "the same comment again";
    EXPECT_THAT(commentsOf(token, job), ElementsAre("+"));
    EXPECT_EQ(deleteFeed(ann, token, L"unused", L"c-1", job), L"ok");
    EXPECT_THAT(commentsOf(token, job), IsEmpty());
    EXPECT_EQ(deleteFeed(ann, token, L"unused", L"c-1", job), L"ok") << "one that is gone is fine";
}

TEST_F(AtService, ASharingInvitesTheAddressesAsTyped)
{
    std::wstring const token = signIn();
    std::wstring const job = send(token, "PRC");
    EXPECT_EQ(CloudHelper::share(ann, token, job, L",bob@example.org,,eve@example.org,", L"see 1+1"), L"2");
    EXPECT_THAT(service.outbox(), SizeIs(2));
    EXPECT_EQ(contentOf(environment.cloud("share")), "");
}

TEST_F(AtService, AHundredPeopleAreInvitedAtOnceAndNobodyOfMore)
{
    std::wstring const token = signIn();
    std::wstring const job = send(token, "PRC");
    auto const list = [](int count) {
        std::wstring text;
        for (int i = 0; i < count; ++i) {
            text += L",colleague" + std::to_wstring(i) + L"@example.org,";
        }
        return text;
    };
    for (int const tooMany : {101, 500}) {
        EXPECT_EQ(CloudHelper::share(ann, token, job, list(tooMany), L""), L"");
        EXPECT_THAT(service.outbox(), IsEmpty());
    }
    EXPECT_EQ(CloudHelper::share(ann, token, job, list(100), L"1+1 is %2b"), L"100");
    EXPECT_THAT(service.outbox(), SizeIs(100));
}

TEST_F(AtService, ALogoutEndsTheSessionAtBothEnds)
{
    std::wstring const token = signIn();
    EXPECT_TRUE(std::filesystem::exists(jar()));
    EXPECT_EQ(CloudHelper::logout(ann), L"ok");
    EXPECT_FALSE(std::filesystem::exists(environment.session()));
    EXPECT_FALSE(std::filesystem::exists(jar())) << "the service has taken the cookie back";
    EXPECT_EQ(accountInfo(ann, token), L"") << "the token is worth nothing any more";
    EXPECT_EQ(send(token, "PRC"), L"failed");
}

TEST_F(AtService, ALogoutWorksAfterARestart)
{
    std::wstring const token = signIn();
    orvweb::setTransport(std::make_shared<orvweb::CurlTransport>()); // that of another run
    EXPECT_EQ(CloudHelper::logout(ann), L"ok");
    EXPECT_EQ(accountInfo(ann, token), L"");
}

TEST_F(AtService, WithoutASessionEveryRequestGivesItsFailure)
{
    EXPECT_EQ(accountInfo(ann, L""), L"");
    EXPECT_EQ(isFilePresent(ann, L"nobody's token", model), L"");
    std::wstring const job(36, L'x');
    EXPECT_EQ(getFeed(ann, L"", L"", job), L"");
    EXPECT_EQ(addFeed(ann, L"", model, L"c-1", L"{}", job), L"");
    EXPECT_EQ(deleteFeed(ann, L"", L"", L"c-1", job), L"");
    EXPECT_EQ(send(L"", "PRC"), L"failed");
    EXPECT_EQ(CloudHelper::share(ann, L"", job, L"bob@example.org", L""), L"");
    EXPECT_EQ(CloudHelper::logout(ann), L"ok") << "there is nothing to end";
}

TEST_F(AtService, NothingSecretIsLogged)
{
    std::wstring const token = signIn();
    send(token, "PRC");
    EXPECT_THAT(service.logText(), Not(HasSubstr(orvtext::toUtf8(token))));
    EXPECT_THAT(service.logText(), Not(HasSubstr("ann's password")));
}

} // namespace
