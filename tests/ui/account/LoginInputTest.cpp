// What a user may type or paste into the boxes of the login, through the dialog itself and through the prompt in the
// feed pane: nothing is tested here, so it reaches the service as it stands, and the session file as far as it has
// bytes.

#include "ui/account/AccountTest.h"

#include <ostream>

using namespace orvtest;
using namespace std::string_literals;

namespace
{

std::string repeated(std::string const& text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

struct Typed {
    char const* name;
    std::wstring text;
    std::string sent;  ///< as a form's value
    std::string lines; ///< of the session file, where it was the e-mail address and the login succeeded; a bar a line
};
std::ostream& operator<<(std::ostream& stream, Typed const& each)
{
    return stream << each.name;
}

class LoginInput : public AccountTest, public testing::WithParamInterface<Typed>
{
protected:
    enum class Way { dialog, prompt };

    void submit(Way way, std::wstring const& name, std::wstring const& secret)
    {
        auto const use = [&](CloudLoginDlg& dialog) { signInAs(dialog, name, secret); };
        if (way == Way::dialog) {
            openLogin(use);
        } else {
            openPrompt(use);
        }
    }
    void expectEmailTaken(Way way)
    {
        expectLogin();
        submit(way, GetParam().text, L"secret");
        EXPECT_EQ(server.requests().at(0).body,
                  "name=" + apiId() + "&username=" + GetParam().sent + "&password=secret");
        EXPECT_EQ(server.requests().at(2).query(), "name=" + apiId() + "&username=" + GetParam().sent);
        EXPECT_EQ(user->username, GetParam().text);
        EXPECT_EQ(user->userid, token);
        EXPECT_EQ(user->name, L"Ann");
        std::string const two = GetParam().lines;
        bool const isWhole = two.ends_with("|");
        EXPECT_EQ(viewer->events, (std::vector<std::string>{"/api/Login/ {}", "/api/InstalledDevice/ {" + two + "}",
                                                            "status " + narrow(130) + " {" + two + "}",
                                                            "/api/AccountInfo/ {" + two + "}",
                                                            "hint 41 {" + two + (isWhole ? "Ann|" : "") + "}"}));
    }
    void expectPasswordTaken(Way way)
    {
        expectLogin();
        submit(way, L"ann@example.com", GetParam().text);
        EXPECT_EQ(server.requests().at(0).body,
                  "name=" + apiId() + "&username=ann%40example.com&password=" + GetParam().sent);
        EXPECT_EQ(sessionState(), twoLines() + "Ann|") << "no password ever";
        EXPECT_EQ(hints().size(), 1U);
    }
    void expectRefused(Way way)
    {
        server.expect("POST", "/api/Login/", Answer::status(401));
        submit(way, GetParam().text, GetParam().text);
        EXPECT_EQ(server.last().body,
                  "name=" + apiId() + "&username=" + GetParam().sent + "&password=" + GetParam().sent);
        EXPECT_EQ(viewer->events,
                  (std::vector<std::string>{"/api/Login/ {}", "status " + narrow(131) + " {no directory}"}));
        EXPECT_EQ(sessionState(), "none");
        EXPECT_EQ(user->userid, L"");
    }
};

TEST_P(LoginInput, AsAnEmailAddressInTheDialog)
{
    expectEmailTaken(Way::dialog);
}
TEST_P(LoginInput, AsAnEmailAddressThroughThePrompt)
{
    expectEmailTaken(Way::prompt);
}
TEST_P(LoginInput, AsAPasswordInTheDialog)
{
    expectPasswordTaken(Way::dialog);
}
TEST_P(LoginInput, AsAPasswordThroughThePrompt)
{
    expectPasswordTaken(Way::prompt);
}
TEST_P(LoginInput, RefusedInTheDialog)
{
    expectRefused(Way::dialog);
}
TEST_P(LoginInput, RefusedThroughThePrompt)
{
    expectRefused(Way::prompt);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LoginInput,
    testing::Values(Typed{"Empty", L"", "", "|"s + tokenBytes + "|"},
                    Typed{"Of10000Characters", std::wstring(10000, L'x'), std::string(10000, 'x'),
                          std::string(10000, 'x') + "|" + tokenBytes + "|"},
                    // A later reader takes the second half for the token; the service is what refuses such an address.
                    Typed{"WithALineFeed", L"ann\n@example.com", "ann%0A%40example.com",
                          "ann|@example.com|"s + tokenBytes + "|"},
                    Typed{"OfOneByteCharacters", L"J\u00fcrgen \u00ff", "J%C3%BCrgen%20%C3%BF",
                          "J\xFCrgen \xFF|"s + tokenBytes + "|"},
                    Typed{"AboveOneByte", L"a\u0141b", "a%C5%81b", "a"},
                    Typed{"BeyondTheBasicPlane", L"a\U0001F600b", "a%F0%9F%98%80b", "a"},
                    Typed{"Of10000CharactersBeyondTheBasicPlane", std::wstring(10000, L'\U0001F600'),
                          repeated("%F0%9F%98%80", 10000), ""}),
    NameOfCase());

} // namespace
