#include "ui/account/SupportRequest.h"
#include "ui/UiTest.h"
#include "ui/account/BuildSettings.h"
#include "ui/account/CloudLoginDlg.h"

#include <fstream>
#include <iterator>

using namespace orvtest;

namespace
{

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
        installProgram("xdg-email", "if [ \"$1\" = --version ]; then echo 1; exit 0; fi\n"
                                    "printf '%s\\n' \"$@\" > '" +
                                        mailFile().string() + ".part' && mv '" + mailFile().string() + ".part' '" +
                                        mailFile().string() + "'");
        setenv("PATH", (programs.string() + ":" + pathBefore).c_str(), 1);
    }
    void removeMailClient() { setenv("PATH", programs.c_str(), 1); }

    std::filesystem::path mailFile() const { return dataDirectory / "mail"; }
    std::string mail() const
    {
        EXPECT_TRUE(orvplatform::testing::waitFor([this] { return std::filesystem::exists(mailFile()); }));
        std::ifstream file(mailFile());
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::string pathBefore;
    std::filesystem::path programs;
};

class OwnSupportText final : public orv::ISupportText
{
public:
    wchar_t const* text() override { return L"The application's own words"; }
};

std::string narrow(std::wstring const& text)
{
    return {text.begin(), text.end()};
}

} // namespace

TEST_F(SupportRequestTest, WithoutAMailClientNothingHappens)
{
    removeMailClient();
    sendSupportRequest(scene.document);
    EXPECT_TRUE(application->texts.empty());
    EXPECT_FALSE(std::filesystem::exists(mailFile()));
}

TEST_F(SupportRequestTest, WithoutAnApplicationNothingHappens)
{
    installMailClient();
    scene.document->setSchema(orv::SCApplication::key, nullptr);
    sendSupportRequest(scene.document);
    sendSupportRequest(nullptr);
    EXPECT_FALSE(std::filesystem::exists(mailFile()));
}

TEST_F(SupportRequestTest, TheMailDescribesTheSystem)
{
    installMailClient();
    sendSupportRequest(scene.document);
    std::string const sent = mail();
    EXPECT_NE(sent.find("Orvanta Support Request"), std::string::npos);
    EXPECT_NE(sent.find(narrow(buildSettings::supportAddress)), std::string::npos);
    EXPECT_NE(sent.find("Orvanta"), std::string::npos);
}

TEST_F(SupportRequestTest, TheLinkOfTheLoginDialogStartsTheRequest)
{
    using namespace orvplatform::testing;
    installMailClient();
    modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
        EXPECT_TRUE(clickLink(dialog, 1037, buildSettings::supportAddress));
        EXPECT_TRUE(IsWindow(dialog.GetSafeHwnd())); // stays as it was
        return IDCANCEL;
    });
    CloudLoginDlg dialog(scene.document, user, helper);
    dialog.DoModal();
    EXPECT_NE(mail().find("Orvanta Support Request"), std::string::npos);
}

TEST_F(SupportRequestTest, TheApplicationsOwnTextTakesItsPlace)
{
    installMailClient();
    scene.application->supportText = std::make_shared<OwnSupportText>();
    sendSupportRequest(scene.document);
    EXPECT_NE(mail().find("The application's own words"), std::string::npos);
}
