#include "ui/DialogTemplate.h"
#include "ui/UiTest.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/FeedLoginDlg.h"
#include "ui/account/SettingsDlg.h"
#include "ui/feed/AddFeed.h"
#include "ui/feed/FeedBlock.h"
#include "ui/feed/FeedToolbarDialog.h"
#include "ui/feed/ShareDialog.h"

#include <array>

using namespace orvtest;

namespace
{
class DialogTemplateTest : public UiTest
{
};
} // namespace

TEST_F(DialogTemplateTest, EveryDialogHasATemplateForEveryLanguage)
{
    struct {
        UINT (*templateId)();
        std::array<UINT, 8> ids;
    } const dialogs[] = {
        {&CloudLoginDlg::templateId, {101, 122, 123, 124, 125, 126, 127, 128}},
        {&SettingsDlg::templateId, {106, 172, 173, 174, 175, 176, 177, 178}},
        {&sharedlg::templateId, {108, 179, 180, 181, 182, 183, 184, 185}},
        {&FeedLoginDlg::templateId, {115, 293, 294, 295, 296, 297, 298, 299}},
        {&AddFeed::templateId, {207, 279, 280, 281, 282, 283, 284, 285}},
        {&FeedBlock::templateId, {203, 286, 287, 288, 289, 290, 291, 292}},
        {&FeedToolbarDialog::templateId, {206, 300, 301, 302, 303, 304, 305, 306}},
    };
    std::array<wchar_t const*, 8> const languages = {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"};
    for (std::size_t i = 0; i < languages.size(); ++i) {
        configure(languages[i]);
        for (auto const& dialog : dialogs) {
            EXPECT_EQ(dialog.templateId(), dialog.ids[i]);
        }
    }
}

TEST_F(DialogTemplateTest, AnyOtherCodeGivesEnglish)
{
    for (wchar_t const* const language : {L"it", L"nl", L""}) {
        configure(language);
        EXPECT_EQ(CloudLoginDlg::templateId(), 101U);
    }
}

TEST(DialogTemplate, ComparesTheWholeCode)
{
    DialogTemplate const ids{0, 1, 2, 3, 4, 5, 6, 7};
    std::array<wchar_t const*, 8> const listed = {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"};
    for (UINT i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(ids.forLanguage(listed[i]), i);
    }
    for (wchar_t const* const code : {L"de-AT", L"de_DE", L"DE", L"De", L"d", L"deu", L"fra", L"it", L"zh-CN", L""}) {
        EXPECT_EQ(ids.forLanguage(code), 0U) << code;
    }
}
