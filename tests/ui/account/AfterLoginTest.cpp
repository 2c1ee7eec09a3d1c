// What follows a login that the service has granted: the registration of the device and the account's name.

#include "ui/account/LoginOverHttp.h"

#include <ostream>

using namespace orvtest;
using namespace orvplatform::testing;
using namespace std::string_literals;

namespace
{

class FailedDevice : public LoginOverHttp, public testing::WithParamInterface<NamedAnswer>
{
};

TEST_P(FailedDevice, NeverFailsALogin)
{
    server.expect("POST", "/api/Login/", Answer::ok(tokenBytes));
    server.expect("POST", "/api/InstalledDevice/", GetParam().answer);
    server.expect("GET", "/api/AccountInfo/", Answer::ok(R"({"name":"Ann"})"));
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    expectSignedIn();
    EXPECT_EQ(sessionState(), twoLines() + "Ann|");
    EXPECT_EQ(texts(), std::vector<std::string>{narrow(130)});
    EXPECT_EQ(hints().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Answers, FailedDevice,
                         testing::Values(NamedAnswer{"Refused", Answer::status(401)},
                                         NamedAnswer{"Error", Answer::status(500)},
                                         NamedAnswer{"HangsUp", Answer::hangUp()},
                                         NamedAnswer{"StaysSilent", Answer::silence()},
                                         NamedAnswer{"AnswersWithAToken", Answer::ok(jobIdBytes)}),
                         NameOfCase());

class UnknownName : public LoginOverHttp, public testing::WithParamInterface<NamedAnswer>
{
};

TEST_P(UnknownName, LeavesTwoLinesAndTheUserSignedIn)
{
    user->name = L"Before";
    expectLogin(GetParam().answer);
    std::vector<std::string> broken;
    orvplatform::setExceptionHandler([&broken](std::string const& why) { broken.push_back(why); });
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    orvplatform::setExceptionHandler({});
    EXPECT_TRUE(broken.empty()) << broken.front();
    expectSignedIn();
    EXPECT_EQ(user->name, L"Before");
    EXPECT_EQ(sessionState(), twoLines());
    EXPECT_EQ(texts(), std::vector<std::string>{narrow(130)});
    EXPECT_EQ(hints(), std::vector<std::string>{"hint 41 {" + twoLines() + "}"});
}

INSTANTIATE_TEST_SUITE_P(
    Answers, UnknownName,
    testing::Values(NamedAnswer{"Refused", Answer::status(401)},
                    NamedAnswer{"Error", Answer::status(500, R"({"name":"Ann"})")},
                    NamedAnswer{"HangsUp", Answer::hangUp()}, NamedAnswer{"StaysSilent", Answer::silence()},
                    NamedAnswer{"CutInMidBody", Answer::cut(R"({"name":)", 100)}, NamedAnswer{"Empty", Answer::ok("")},
                    NamedAnswer{"HtmlPage", Answer::ok("<html><body>It works!</body></html>")},
                    NamedAnswer{"NulBytes", Answer::ok(std::string(100, '\0'))},
                    NamedAnswer{"Null", Answer::ok("null")}, NamedAnswer{"Number", Answer::ok("5")},
                    NamedAnswer{"Text", Answer::ok("\"Ann\"")}, NamedAnswer{"List", Answer::ok(R"([{"name":"Ann"}])")},
                    NamedAnswer{"NameIsAList", Answer::ok(R"({"name":[]})")},
                    NamedAnswer{"NameIsAnObject", Answer::ok(R"({"name":{"first":"Ann"}})")},
                    NamedAnswer{"NestedTooDeeply", Answer::ok(std::string(5000, '['))},
                    NamedAnswer{"NestedTooDeeplyInside",
                                Answer::ok(R"({"name":"Ann","more":)" + std::string(100000, '[') + "}")}),
    NameOfCase());

struct NameCase {
    char const* name;
    std::string answer; ///< of the service
    std::wstring read;  ///< as it is known from then on
    std::string bytes;  ///< of the session file behind its second line
};
std::ostream& operator<<(std::ostream& stream, NameCase const& each)
{
    return stream << each.name;
}

class AccountName : public LoginOverHttp, public testing::WithParamInterface<NameCase>
{
};

TEST_P(AccountName, IsKnownAndWrittenAsFarAsItHasBytes)
{
    user->name = L"Before";
    expectLogin(Answer::ok(GetParam().answer));
    EXPECT_EQ(openLogin(signInAsAnn), IDCANCEL);
    expectSignedIn();
    EXPECT_EQ(user->name, GetParam().read);
    EXPECT_EQ(sessionState(), twoLines() + GetParam().bytes);
    EXPECT_EQ(hints().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, AccountName,
    testing::Values(NameCase{"Escaped", R"({"name":"J\u00fcrgen"})", L"J\u00fcrgen", "J\xFCrgen|"},
                    NameCase{"InUtf8", "{\"name\":\"J\xC3\xBCrgen\"}", L"J\u00fcrgen", "J\xFCrgen|"},
                    NameCase{"WithACommentBefore", "/* who */ {\"name\":\"Ann\"} // that is all", L"Ann", "Ann|"},
                    NameCase{"AboveOneByte", R"({"name":"Jos\u00e9 \u0141ukasz"})", L"Jos\u00e9 \u0141ukasz",
                             "Jos\xE9 "},
                    NameCase{"BeyondTheBasicPlane", R"({"name":"Ann \ud83d\ude00 M."})", L"Ann \U0001F600 M.", "Ann "},
                    NameCase{"InvalidUtf8", "{\"name\":\"A\xFF\"}", L"A\uFFFD", "A"},
                    NameCase{"OfTwoLines", R"({"name":"Ann\nM."})", L"Ann\nM.", "Ann|M.|"},
                    NameCase{"Missing", R"({"email":"ann@example.com"})", L"", "|"},
                    NameCase{"Empty", R"({"name":""})", L"", "|"}, NameCase{"Null", R"({"name":null})", L"", "|"},
                    NameCase{"Number", R"({"name":7})", L"7", "7|"},
                    NameCase{"Of10000Characters", "{\"name\":\"" + std::string(10000, 'n') + "\"}",
                             std::wstring(10000, L'n'), std::string(10000, 'n') + "|"}),
    NameOfCase());

/// A service that takes a request and never answers, at each of the later steps.

} // namespace
