// The share dialog against the real service.

#include "platform/text/Text.h"
#include "service/FeedRequests.h"
#include "support/RealService.h"
#include "ui/feed/ShareFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace orvtest;
using namespace orvplatform::testing;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

class ShareToService : public ShareTest
{
protected:
    ShareToService()
    {
        useService(service.wideUrl());
        user->username = L"ann@example.org";
        user->userid = orvtext::fromUtf8(service.signIn("ann").token);
    }

    std::wstring jobIdFor(std::string const& name)
    {
        auto const session = service.signIn(name);
        return isFilePresent(orvtext::fromUtf8(session.email), orvtext::fromUtf8(session.token), L"gearbox.step");
    }

    RealService service;
};

} // namespace

TEST_F(ShareToService, TheInvitedSeeTheModelAndGetTheMessage)
{
    EXPECT_EQ(jobIdFor("bob"), L"");
    EXPECT_EQ(shareWith(L",bob@example.org,,new.person@example.net,", L"Schau dir das \u00e4n"), IDCANCEL);
    EXPECT_EQ(application->lastText(), L"gearbox.step shared successfully. ");
    auto const job = jobIdFor("bob");
    EXPECT_EQ(job.size(), 36U);
    EXPECT_EQ(jobIdFor("ann"), job);
    EXPECT_EQ(jobIdFor("eve"), L"") << "nobody else";
    auto mails = service.outbox();
    ASSERT_THAT(mails, SizeIs(2));
    std::sort(mails.begin(), mails.end(), [](auto const& a, auto const& b) {
        return (a.find("bob@example.org") != std::string::npos) > (b.find("bob@example.org") != std::string::npos);
    });
    EXPECT_THAT(mails[0], HasSubstr("bob@example.org"));
    EXPECT_THAT(mails[1], HasSubstr("new.person@example.net"));
}

TEST_F(ShareToService, SharingAgainKeepsTheModelsIdentity)
{
    EXPECT_EQ(shareWith(L"bob@example.org", {}), IDCANCEL);
    auto const job = jobIdFor("bob");
    EXPECT_EQ(shareWith(L"eve@example.org", {}), IDCANCEL);
    EXPECT_EQ(jobIdFor("bob"), job);
    EXPECT_EQ(jobIdFor("eve"), job);
}

TEST_F(ShareToService, WithoutARightToItNothingIsShared)
{
    user->userid = jobId; // nobody's token
    EXPECT_EQ(shareWith(L"bob@example.org", {}), IDCANCEL);
    EXPECT_EQ(application->lastText(), text(133));
    EXPECT_EQ(jobIdFor("bob"), L"");
    EXPECT_THAT(service.outbox(), IsEmpty());
}
