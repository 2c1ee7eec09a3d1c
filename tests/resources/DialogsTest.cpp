#include "resources/Expected.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using namespace restest;

namespace
{

constexpr unsigned noId = 0xFFFFFFFF;
constexpr std::uint32_t caption = 0x00C00000;
constexpr std::uint32_t systemMenu = 0x00080000;
constexpr std::uint32_t child = 0x40000000;
constexpr std::uint32_t visible = 0x10000000;
constexpr std::uint32_t disabled = 0x08000000;
constexpr std::uint32_t border = 0x00800000;
constexpr std::uint32_t tabStop = 0x00010000;
constexpr std::uint32_t multiLine = 0x0004;
constexpr std::uint32_t password = 0x0020;
constexpr std::uint32_t scrollsSideways = 0x0080;
constexpr std::uint32_t transparent = 0x20;
constexpr std::uint32_t defaultButton = 1;
constexpr std::uint32_t groupBox = 7;

const Name button{0x80U};
const Name edit{0x81U};
const Name label{0x82U};
const Name maskedEdit{u"MFCMASKEDEDIT"};
const Name webLink{u"MFCLINK"};
const Name linkText{u"SYSLINK"};

struct Expected {
    unsigned id;
    Name className;
    const char* text;
    std::array<int, 4> place;
};

struct ExpectedDialog {
    DialogKind kind;
    int width, height;
    const char* title;
    std::vector<Expected> controls;
};

const std::vector<ExpectedDialog> englishDialogs{
    {SignIn,
     193,
     170,
     "Login to Orvanta Cloud",
     {{1001, button, "Login", {12, 84, 58, 14}},
      {1017, edit, "", {12, 25, 162, 14}},
      {1018, maskedEdit, "", {12, 61, 162, 14}},
      {noId, label, "Email", {12, 12, 30, 8}},
      {noId, label, "Password", {12, 47, 34, 8}},
      {1037, linkText, "", {12, 116, 180, 40}},
      {1043, webLink, "", {48, 42, 60, 14}},
      {1023, webLink, "(Forgot Password?)", {47, 46, 78, 12}}}},
    {Settings,
     243,
     164,
     "Cloud",
     {{1029, label, "You are logged in to cloud.", {18, 30, 192, 24}},
      {1022, button, "Logout", {18, 70, 50, 14}},
      {noId, button, "Cloud", {12, 12, 210, 80}}}},
    {Share,
     207,
     128,
     "Share",
     {{1, button, "Share", {137, 108, 50, 14}},
      {1034, edit, "", {15, 20, 171, 12}},
      {1035, edit, "", {16, 48, 171, 36}},
      {noId, label, "To", {16, 8, 9, 8}},
      {noId, label, "Message", {16, 36, 29, 8}},
      {1036, label, "Please enter valid email addresses.", {16, 91, 192, 8}}}},
    {Prompt, 170, 176, "", {{270, button, "Login to Orvanta Cloud", {0, 0, 168, 24}}}},
    {Block,
     196,
     320,
     "",
     {{2002, label, "", {12, 4, 102, 25}},
      {2001, label, "", {12, 6, 16, 14}},
      {2004, label, "", {12, 0, 102, 8}},
      {1037, button, "", {114, 0, 30, 24}}}},
    {Toolbar,
     194,
     128,
     "",
     {{271, button, "Push to Cloud", {6, 5, 126, 24}}, {272, button, "Share", {6, 34, 126, 24}}}},
    {AddComment, 158, 74, "", {{2006, button, "Submit", {11, 52, 50, 14}}, {2005, edit, "", {12, 9, 114, 36}}}},
};

bool isModal(DialogKind kind)
{
    return kind == SignIn || kind == Settings || kind == Share;
}

const Control& control(const Dialog& dialog, unsigned id)
{
    const auto found = std::find_if(dialog.controls.begin(), dialog.controls.end(),
                                    [id](const Control& candidate) { return candidate.id == id; });
    if (found == dialog.controls.end()) {
        throw std::runtime_error("no control " + std::to_string(id));
    }
    return *found;
}

// What stays the same from language to language, in the order of the template.
std::vector<std::tuple<unsigned, std::uint32_t, std::uint32_t, Name>> kinds(const Dialog& dialog)
{
    std::vector<std::tuple<unsigned, std::uint32_t, std::uint32_t, Name>> result;
    for (const Control& item : dialog.controls) {
        result.emplace_back(item.id, item.style, item.extendedStyle, item.className);
    }
    return result;
}

class DialogsTest : public testing::TestWithParam<Language>
{
};

} // namespace

TEST(EnglishDialogs, HaveTheGivenControlsAndPlaces)
{
    for (const ExpectedDialog& expected : englishDialogs) {
        SCOPED_TRACE(languages[0].dialogs.at(expected.kind));
        const Dialog dialog = dialogOf(languages[0], expected.kind);
        EXPECT_EQ(dialog.width, expected.width);
        EXPECT_EQ(dialog.height, expected.height);
        EXPECT_EQ(utf8(dialog.title), expected.title);
        EXPECT_EQ(dialog.controls.size(), expected.controls.size());
        for (const Expected& wanted : expected.controls) {
            const auto found =
                std::find_if(dialog.controls.begin(), dialog.controls.end(), [&](const Control& candidate) {
                    return candidate.id == wanted.id && textOf(candidate) == wanted.text;
                });
            ASSERT_NE(found, dialog.controls.end()) << wanted.id << " " << wanted.text;
            EXPECT_EQ(found->className, wanted.className) << wanted.id;
            EXPECT_EQ((std::array{found->x, found->y, found->width, found->height}), wanted.place) << wanted.id;
        }
    }
}

TEST(EnglishDialogs, GiveControlsTheirStyles)
{
    const Dialog signIn = dialogOf(languages[0], SignIn);
    EXPECT_EQ(control(signIn, 1001).style & 0xF, defaultButton);
    EXPECT_TRUE(control(signIn, 1018).style & password);
    EXPECT_FALSE(control(signIn, 1017).style & password);
    EXPECT_TRUE(control(signIn, 1023).style & visible);
    EXPECT_FALSE(control(signIn, 1043).style & visible);
    EXPECT_TRUE(control(signIn, 1043).style & disabled);

    const Dialog settings = dialogOf(languages[0], Settings);
    EXPECT_TRUE(control(settings, 1029).extendedStyle & transparent);
    EXPECT_EQ(control(settings, noId).style & 0xF, groupBox);

    const Dialog share = dialogOf(languages[0], Share);
    EXPECT_EQ(control(share, 1).style & 0xF, defaultButton);
    for (const unsigned id : {1034U, 1035U}) {
        EXPECT_TRUE(control(share, id).style & scrollsSideways);
        EXPECT_FALSE(control(share, id).style & multiLine);
    }

    const Dialog block = dialogOf(languages[0], Block);
    EXPECT_EQ(control(block, 2001).style & 0x100F, 0x100EU) << "a bitmap with a sunken border";

    const Dialog addComment = dialogOf(languages[0], AddComment);
    const std::uint32_t box = border | tabStop | multiLine | scrollsSideways;
    EXPECT_EQ(control(addComment, 2005).style & box, box);
    EXPECT_EQ(control(addComment, 2006).style & 0xF, defaultButton);
    EXPECT_TRUE(control(addComment, 2006).style & tabStop);
}

TEST_P(DialogsTest, HaveFrameAndFontOfTheirKind)
{
    for (int i = 0; i < DialogKindCount; ++i) {
        const auto kind = static_cast<DialogKind>(i);
        const Dialog dialog = dialogOf(GetParam(), kind);
        SCOPED_TRACE(GetParam().dialogs.at(kind));
        EXPECT_EQ(utf8(dialog.typeface), "MS Shell Dlg");
        EXPECT_EQ(dialog.pointSize, 8U);
        EXPECT_EQ(dialog.style & child, isModal(kind) ? 0 : child);
        EXPECT_EQ(dialog.style & (caption | systemMenu), isModal(kind) ? caption | systemMenu : 0);
        EXPECT_EQ(dialog.title.empty(), !isModal(kind));
    }
}

TEST_P(DialogsTest, HaveTheSameControlsAsTheEnglishOnes)
{
    for (int i = 0; i < DialogKindCount; ++i) {
        const auto kind = static_cast<DialogKind>(i);
        SCOPED_TRACE(GetParam().dialogs.at(kind));
        EXPECT_EQ(kinds(dialogOf(GetParam(), kind)), kinds(dialogOf(languages[0], kind)));
    }
}

TEST_P(DialogsTest, HaveATextWhereTheEnglishOneHasOne)
{
    for (int i = 0; i < DialogKindCount; ++i) {
        const auto kind = static_cast<DialogKind>(i);
        const Dialog original = dialogOf(languages[0], kind);
        const Dialog dialog = dialogOf(GetParam(), kind);
        ASSERT_EQ(dialog.controls.size(), original.controls.size());
        for (std::size_t at = 0; at < dialog.controls.size(); ++at) {
            EXPECT_EQ(textOf(dialog.controls[at]).empty(), textOf(original.controls[at]).empty())
                << GetParam().dialogs.at(kind) << ", control " << dialog.controls[at].id;
        }
    }
}

TEST_P(DialogsTest, AreTranslated)
{
    if (GetParam().tag == english) {
        GTEST_SKIP() << "English is the original";
    }
    // Words that a language shares with English.
    const std::map<std::string, std::set<std::string>> alike{{"de", {"Cloud"}}, {"fr", {"Cloud", "Message"}}};
    const auto expectTranslated = [&](const std::string& text, const std::string& original) {
        const auto words = alike.find(GetParam().code);
        if (!original.empty() && (words == alike.end() || !words->second.contains(original))) {
            EXPECT_NE(text, original);
        }
    };
    for (int i = 0; i < DialogKindCount; ++i) {
        const auto kind = static_cast<DialogKind>(i);
        const Dialog original = dialogOf(languages[0], kind);
        const Dialog dialog = dialogOf(GetParam(), kind);
        SCOPED_TRACE(GetParam().dialogs.at(kind));
        expectTranslated(utf8(dialog.title), utf8(original.title));
        ASSERT_EQ(dialog.controls.size(), original.controls.size());
        for (std::size_t at = 0; at < dialog.controls.size(); ++at) {
            expectTranslated(textOf(dialog.controls[at]), textOf(original.controls[at]));
        }
    }
}

TEST_P(DialogsTest, KeepControlsInsideAndApart)
{
    for (const DialogKind kind : {SignIn, Settings, Share, Toolbar, AddComment}) {
        const Dialog dialog = dialogOf(GetParam(), kind);
        for (const Control& one : dialog.controls) {
            SCOPED_TRACE(std::to_string(GetParam().dialogs.at(kind)) + ", control " + textOf(one));
            EXPECT_GE(one.x, 0);
            EXPECT_GE(one.y, 0);
            // The English error label is one unit wider than its dialog: its text ends long before that.
            EXPECT_LE(one.x + one.width, dialog.width + (one.id == 1036 ? 1 : 0));
            EXPECT_LE(one.y + one.height, dialog.height);
            for (const Control& other : dialog.controls) {
                const bool frame = one.style % 16 == groupBox || other.style % 16 == groupBox;
                if (&one == &other || frame || !(one.style & visible) || !(other.style & visible)) {
                    continue;
                }
                EXPECT_TRUE(one.x + one.width <= other.x || other.x + other.width <= one.x ||
                            one.y + one.height <= other.y || other.y + other.height <= one.y)
                    << "overlaps " << other.id << " " << textOf(other);
            }
        }
    }
}

TEST_P(DialogsTest, LeadToANewPassword)
{
    const Dialog dialog = dialogOf(GetParam(), SignIn);
    std::u16string target;
    const Bytes& data = control(dialog, 1023).creationData;
    ASSERT_EQ(data.size() % 2, 0U);
    for (std::size_t i = 0; i < data.size(); i += 2) {
        target += static_cast<char16_t>(data[i] | data[i + 1] << 8);
    }
    EXPECT_EQ(target, utf16(ORVANTA_SERVICE_URL "/reset") + u'\0');
    EXPECT_TRUE(control(dialog, 1043).creationData.empty());
}

TEST_P(DialogsTest, AreTitledAsTheStringsAre)
{
    auto strings = stringsOf(resources(), GetParam().tag);
    EXPECT_EQ(utf8(dialogOf(GetParam(), SignIn).title), utf8(strings[2007]));
    EXPECT_EQ(utf8(dialogOf(GetParam(), Settings).title), utf8(strings[112]));
    EXPECT_EQ(utf8(dialogOf(GetParam(), Share).title), utf8(strings[103]));
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), Settings), noId)), utf8(strings[112])) << "the frame";
}

TEST_P(DialogsTest, LabelTheButtonsAsTheStringsDo)
{
    auto strings = stringsOf(resources(), GetParam().tag);
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), Prompt), 270)), utf8(strings[2007]));
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), Toolbar), 272)), utf8(strings[103]));
    // English writes the button's "Cloud" with a capital and the string's without: given so.
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), Toolbar), 271)),
              GetParam().tag == english ? "Push to Cloud" : utf8(strings[119]));
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), SignIn), 1001)), utf8(strings[106]));
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), Settings), 1022)), utf8(strings[107]));
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), Share), 1)), utf8(strings[103]));
    EXPECT_EQ(textOf(control(dialogOf(GetParam(), AddComment), 2006)), GetParam().submit);
}

TEST_P(DialogsTest, LayTheCommentBoxOutAlike)
{
    const Dialog original = dialogOf(languages[0], AddComment);
    const Dialog dialog = dialogOf(GetParam(), AddComment);
    EXPECT_EQ(dialog.width, original.width);
    EXPECT_EQ(dialog.height, original.height);
    for (std::size_t i = 0; i < original.controls.size(); ++i) {
        EXPECT_EQ(dialog.controls.at(i).x, original.controls[i].x);
        EXPECT_EQ(dialog.controls.at(i).y, original.controls[i].y);
        EXPECT_EQ(dialog.controls.at(i).width, original.controls[i].width);
        EXPECT_EQ(dialog.controls.at(i).height, original.controls[i].height);
    }
}

TEST(Dialogs, AreTheSevenOfEachLanguage)
{
    std::set<std::pair<unsigned, unsigned>> expected;
    for (const Language& language : languages) {
        for (const unsigned id : language.dialogs) {
            expected.emplace(id, language.tag);
        }
    }
    std::set<std::pair<unsigned, unsigned>> found;
    for (const Resource& resource : resources()) {
        if (resource.type == Name{typeDialog}) {
            found.emplace(std::get<unsigned>(resource.name), resource.language);
        }
    }
    EXPECT_EQ(found, expected);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogsTest, testing::ValuesIn(languages),
                         [](const auto& test) { return std::string(test.param.code); });
