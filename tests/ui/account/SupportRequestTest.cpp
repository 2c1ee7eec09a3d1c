#include "ui/account/SupportRequest.h"
#include "host/orvSysInfo/GeneralUtils.h"
#include "host/orvSysInfo/ReleaseFile.h"
#include "host/orvweb/Encoding.h"
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
    /// As a URL has it, with mail's line ends.
    static std::string encoded(std::string const& text)
    {
        std::string lines;
        for (char const each : text) {
            if (each == '\n' && !lines.ends_with('\r')) {
                lines.push_back('\r');
            }
            lines.push_back(each);
        }
        return orvweb::percentEncoded(lines);
    }
    static std::string mailWith(std::string const& body)
    {
        return "mailto:" + orvtext::toUtf8(buildSettings::supportAddress) + "?subject=Orvanta%20Support%20Request" +
               (body.empty() ? "" : "&body=" + encoded(body)) + "\n";
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
        EXPECT_NE(mail().find(encoded(orvtext::toUtf8(name))), std::string::npos);
        EXPECT_EQ(mail().find(encoded(orvtext::toUtf8(orvSysInfo::GeneralUtils::getSystemInfo()))), std::string::npos);
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

TEST_F(SupportRequestTest, AnAddressThatIsAlmostTheSupportsSendsNothing)
{
    installMailClient();
    std::wstring const address = buildSettings::supportAddress;
    std::wstring otherCase = address;
    otherCase[0] = static_cast<wchar_t>(otherCase[0] ^ 0x20); // a letter's other case
    ASSERT_NE(otherCase, address);
    modals.expectModal<CloudLoginDlg>([&](CloudLoginDlg& dialog) -> INT_PTR {
        NMLINK click{};
        click.hdr = {dialog.GetDlgItem(1037)->GetSafeHwnd(), 1037, static_cast<UINT>(NM_CLICK)};
        for (std::wstring const& target :
             {address + L"x", address.substr(0, address.size() - 1), otherCase, L"mailto:" + address, L" " + address}) {
            std::copy(target.c_str(), target.c_str() + target.size() + 1, click.item.szUrl);
            dialog.SendMessage(WM_NOTIFY, 1037, reinterpret_cast<LPARAM>(&click));
        }
        return IDCANCEL;
    });
    CloudLoginDlg dialog(scene.document, user, helper);
    dialog.DoModal();
    expectNoMailBefore();
}

TEST_F(SupportRequestTest, BothLinksWorkInEachLanguage)
{
    installMailClient();
    scene.application->supportText = std::make_shared<OwnSupportText>(L"help");
    std::vector<std::wstring> opened;
    orvplatform::setOpenAddressHook([&opened](std::wstring const& address) {
        opened.push_back(address);
        return true;
    });
    std::size_t count = 0;
    for (wchar_t const* const language : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        SCOPED_TRACE(orvtext::toUtf8(language));
        configure(language);
        modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
            EXPECT_TRUE(orvplatform::testing::clickLink(dialog, 1037, buildSettings::serviceUrl));
            EXPECT_TRUE(orvplatform::testing::clickLink(dialog, 1037, buildSettings::supportAddress));
            return IDCANCEL;
        });
        CloudLoginDlg dialog(scene.document, user, helper);
        dialog.DoModal();
        ++count;
        EXPECT_EQ(opened, std::vector<std::wstring>(count, buildSettings::serviceUrl));
        ASSERT_TRUE(orvplatform::testing::waitFor([&] { return mails().size() == count; }));
        EXPECT_EQ(mails(), std::vector<std::string>(count, mailWith("help")));
    }
    orvplatform::setOpenAddressHook({});
}

TEST_F(SupportRequestTest, ASystemThatDoesNotTellItsNameIsDescribedByItsKernel)
{
    using orvSysInfo::GeneralUtils;
    installMailClient();
    for (char const* const content : {"", "ID=unknown\n"}) {
        std::filesystem::remove_all(mailDirectory());
        installMailClient();
        std::ofstream(dataDirectory / "release") << content;
        orvSysInfo::setReleaseFile(*content == '\0' ? dataDirectory / "absent" : dataDirectory / "release");
        std::wstring name = L"before";
        std::wstring version = L"before";
        EXPECT_FALSE(GeneralUtils::getOSName(name, version));
        EXPECT_EQ(name + version, L"beforebefore");
        sendSupportRequest(scene.document);
        EXPECT_NE(mail().find(encoded("System: " + orvtext::toUtf8(GeneralUtils::getSystemInfo()) + "\n")),
                  std::string::npos)
            << mail();
    }
    std::filesystem::remove_all(mailDirectory());
    installMailClient();
    std::ofstream(dataDirectory / "release") << "PRETTY_NAME=\"A System 7\"\n";
    orvSysInfo::setReleaseFile(dataDirectory / "release");
    sendSupportRequest(scene.document);
    EXPECT_NE(mail().find(encoded("System: A System 7\n")), std::string::npos) << mail();
    orvSysInfo::setReleaseFile({});
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
    EXPECT_NE(sent.find("too%20long%20for%20the%20mail%20program"), std::string::npos);
    EXPECT_GT(sent.size(), 129000U);
}
