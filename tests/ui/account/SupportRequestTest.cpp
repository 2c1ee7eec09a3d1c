#include "ui/account/SupportRequest.h"
#include "host/orvSysInfo/GeneralUtils.h"
#include "platform/text/Text.h"
#include "ui/UiTest.h"
#include "ui/account/BuildSettings.h"
#include "ui/account/CloudLoginDlg.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

using namespace orvtest;

namespace
{

class OwnSupportText final : public orv::ISupportText
{
public:
    explicit OwnSupportText(wchar_t const* text) : own(text) {}
    wchar_t const* text() override { return own; }

private:
    wchar_t const* own;
};

/// What the mail says of the system where the application has no text of its own.
std::string systemDescription()
{
    using orvSysInfo::GeneralUtils;
    std::wstring name;
    std::wstring version;
    std::wstring const system = GeneralUtils::getOSName(name, version) ? name : GeneralUtils::getSystemInfo();
    return orvtext::toUtf8(GeneralUtils::compileSystemInfo(
        GeneralUtils::getApplicationInfo(), system, GeneralUtils::getHostID(), GeneralUtils::getSignature(), L""));
}

/// A desktop with a mail client of its own: what it is given lands in a file.
class SupportRequestTest : public UiTest
{
protected:
    SupportRequestTest() : pathBefore(std::getenv("PATH")), programs(dataDirectory / "bin")
    {
        std::filesystem::create_directories(programs);
    }
    ~SupportRequestTest() override { setenv("PATH", pathBefore.c_str(), 1); }

    void installProgram(std::string const& name, std::string const& script)
    {
        auto const path = programs / name;
        std::ofstream(path) << "#!/bin/sh\n" << script << "\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    void installMailClient()
    {
        installProgram("xdg-mime", "echo client.desktop");
        std::string const mail = (mailDirectory() / "$$").string();
        installProgram("xdg-email", "if [ \"$1\" = --version ]; then echo 1; exit 0; fi\n"
                                    "printf '%s\\n' \"$@\" > \"" +
                                        mail + ".part\" && mv \"" + mail + ".part\" \"" + mail + ".mail\"");
        std::filesystem::create_directories(mailDirectory());
        setenv("PATH", (programs.string() + ":" + pathBefore).c_str(), 1);
    }
    /// The tools stay, but no program has announced itself for mail.
    void removeMailClient() { installProgram("xdg-mime", "true"); }
    /// The tool is there and a client is known, but a mail can't be written.
    void breakMailClient()
    {
        installProgram("xdg-email", "if [ \"$1\" = --version ]; then echo 1; exit 0; fi\nexit 4");
    }
    void clickSupportLink()
    {
        modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
            EXPECT_TRUE(orvplatform::testing::typeText(dialog, 1017, L"ann@example.com"));
            EXPECT_TRUE(orvplatform::testing::clickLink(dialog, 1037, buildSettings::supportAddress));
            EXPECT_TRUE(IsWindow(dialog.GetSafeHwnd())); // stays as it was
            EXPECT_EQ(orvplatform::testing::textOf(dialog, 1017), L"ann@example.com");
            return IDCANCEL;
        });
        CloudLoginDlg dialog(scene.document, user, helper);
        dialog.DoModal();
        EXPECT_TRUE(application->texts.empty());
    }

    std::filesystem::path mailDirectory() const { return dataDirectory / "mails"; }
    /// The mails that have been written, what the client was started with, a line an argument.
    std::vector<std::string> mails() const
    {
        std::vector<std::string> written;
        for (auto const& entry : std::filesystem::directory_iterator(mailDirectory())) {
            if (entry.path().extension() == ".mail") {
                std::ifstream file(entry.path());
                written.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
            }
        }
        return written;
    }
    std::string mail() const
    {
        EXPECT_TRUE(orvplatform::testing::waitFor([this] { return !mails().empty(); }));
        return mails().empty() ? std::string() : mails().front();
    }
    /// Sends one more request, which does arrive, and sees that it is the only one.
    void expectNoMailBefore() const
    {
        TestScene another;
        another.application->supportText = std::make_shared<OwnSupportText>(L"the only one");
        sendSupportRequest(another.document);
        EXPECT_EQ(mail(), mailWith("the only one"));
        EXPECT_FALSE(orvplatform::testing::waitFor([this] { return mails().size() > 1; }, 200));
    }
    static std::string mailWith(std::string const& body)
    {
        return "--utf8\n--subject\nOrvanta Support Request\n--body\n" + body + "\n" +
               orvtext::toUtf8(buildSettings::supportAddress) + "\n";
    }

    std::string pathBefore;
    std::filesystem::path programs;
};

} // namespace

TEST_F(SupportRequestTest, WithoutAMailClientNothingHappens)
{
    installMailClient();
    removeMailClient();
    sendSupportRequest(scene.document);
    EXPECT_TRUE(application->texts.empty());
    installMailClient();
    expectNoMailBefore();
}

TEST_F(SupportRequestTest, WithoutAnApplicationNothingHappens)
{
    installMailClient();
    scene.document->setSchema(orv::SCApplication::key, nullptr);
    sendSupportRequest(scene.document);
    sendSupportRequest(nullptr);
    expectNoMailBefore();
}

TEST_F(SupportRequestTest, TheMailDescribesTheSystem)
{
    installMailClient();
    sendSupportRequest(scene.document);
    EXPECT_EQ(mail(), mailWith(systemDescription()));
    std::wstring name;
    std::wstring version;
    if (orvSysInfo::GeneralUtils::getOSName(name, version)) {
        EXPECT_NE(mail().find(orvtext::toUtf8(name)), std::string::npos);
        EXPECT_EQ(mail().find(orvtext::toUtf8(orvSysInfo::GeneralUtils::getSystemInfo())), std::string::npos);
    }
}

TEST_F(SupportRequestTest, TheLinkOfTheLoginDialogStartsTheRequest)
{
    installMailClient();
    clickSupportLink();
    EXPECT_EQ(mail(), mailWith(systemDescription()));
}

TEST_F(SupportRequestTest, TheLinkDoesNothingWithoutAMailClient)
{
    installMailClient();
    removeMailClient();
    clickSupportLink();
    installMailClient();
    expectNoMailBefore();
}

TEST_F(SupportRequestTest, AMailThatFailsToSendIsNotReported)
{
    installMailClient();
    breakMailClient();
    clickSupportLink();
    installMailClient();
    expectNoMailBefore();
}

TEST_F(SupportRequestTest, TheApplicationsOwnTextTakesItsPlace)
{
    installMailClient();
    scene.application->supportText = std::make_shared<OwnSupportText>(L"The application's own words");
    sendSupportRequest(scene.document);
    EXPECT_EQ(mail(), mailWith("The application's own words"));
}

TEST_F(SupportRequestTest, AnApplicationThatGivesNoTextAfterAllHasNone)
{
    installMailClient();
    scene.application->supportText = std::make_shared<OwnSupportText>(nullptr);
    sendSupportRequest(scene.document);
    EXPECT_EQ(mail(), mailWith(systemDescription()));
}

TEST_F(SupportRequestTest, ATextArrivesCharacterForCharacter)
{
    for (std::wstring const& own :
         {std::wstring(L"It's \"quoted\", `as` $(is) \\ %s %0A & done; --attach /etc/hostname"),
          std::wstring(L"one\ntwo\r\n\nfour\n"), std::wstring(L"\u65e5\u672c \U0001F600 \u00e9"),
          std::wstring(L"--help"), std::wstring(L" "), std::wstring(L"")}) {
        std::filesystem::remove_all(mailDirectory());
        installMailClient();
        scene.application->supportText = std::make_shared<OwnSupportText>(own.c_str());
        clickSupportLink();
        EXPECT_EQ(mail(), mailWith(orvtext::toUtf8(own)));
    }
}

TEST_F(SupportRequestTest, ALongTextArrivesWhole)
{
    installMailClient();
    std::wstring const own(120000, L'x');
    scene.application->supportText = std::make_shared<OwnSupportText>(own.c_str());
    clickSupportLink();
    EXPECT_EQ(mail(), mailWith(orvtext::toUtf8(own)));
}

// A program takes no argument of 128 KiB or more; a mail that says so is worth more than none.
TEST_F(SupportRequestTest, ATextThatNoProgramTakesIsShortenedAndSaysSo)
{
    installMailClient();
    std::wstring const own(100000, L'\u65e5'); // three bytes each
    scene.application->supportText = std::make_shared<OwnSupportText>(own.c_str());
    clickSupportLink();
    std::string const sent = mail();
    EXPECT_NE(sent.find("too long for the mail program"), std::string::npos);
    EXPECT_EQ(sent.find("\xEF\xBF\xBD"), std::string::npos);
    EXPECT_GT(sent.size(), 130000U);
    std::wstring const arrived = orvtext::fromUtf8(sent);
    EXPECT_EQ(std::count(arrived.begin(), arrived.end(), L'\uFFFD'), 0) << "cut between two characters";
}
