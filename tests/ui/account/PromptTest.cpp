// The prompt in the feed pane by itself.

#include "ui/UiTest.h"
#include "ui/account/FeedLoginDlg.h"

#include <afxcontrolbars.h>

using namespace orvtest;
using namespace orvplatform::testing;

namespace
{

constexpr int button = 270;

class Prompt : public UiTest
{
protected:
    FeedLoginDlg* create()
    {
        auto* const prompt = new FeedLoginDlg; // goes with its window
        EXPECT_TRUE(prompt->Create(FeedLoginDlg::templateId(), &frame));
        return prompt;
    }
};

} // namespace

TEST_F(Prompt, HasAButtonOfTheSamePixelsAtEveryResolution)
{
    for (double const resolution : {72.0, 96.0, 97.0, 120.0, 144.0, 192.0, 288.0}) {
        SCOPED_TRACE(resolution);
        configure(L"en", resolution);
        auto* const prompt = create();
        EXPECT_EQ(placeOf(*prompt, button), CRect(0, 0, 220, 40));
        prompt->DestroyWindow();
    }
}

TEST_F(Prompt, HasAButtonOfTheSamePixelsInEveryLanguage)
{
    for (wchar_t const* const language : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        configure(language);
        auto* const prompt = create();
        EXPECT_EQ(placeOf(*prompt, button), CRect(0, 0, 220, 40));
        EXPECT_EQ(dynamic_cast<CMFCButton*>(prompt->GetDlgItem(button))->GetTooltip().GetString(), text(2007));
        prompt->DestroyWindow();
    }
}

TEST_F(Prompt, SwitchesTheButtonsToTheThemedLook)
{
    BOOL const before = CMFCButton::IsWindowsThemingEnabled();
    CMFCButton::EnableWindowsTheming(FALSE);
    create()->DestroyWindow();
    EXPECT_TRUE(CMFCButton::IsWindowsThemingEnabled());
    CMFCButton::EnableWindowsTheming(before);
}
