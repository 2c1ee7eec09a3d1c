// Every text fits into its control, in every language and at every step of the display's scaling, in the font that the
// windows use and with the dialog units that follow from it.
#include "resources/Expected.h"

#include "platform/qt/Gdi.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QRawFont>
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

using namespace restest;

namespace
{

constexpr std::uint32_t visible = 0x10000000;
constexpr int buttonFrame = 18;   // both sides of a button's text, in pixels
constexpr int editFrame = 8;      // both sides of an edit's text
constexpr int buttonPicture = 30; // the picture on the buttons above the feed, and its distance
constexpr int promptButton = 220; // the sign-in prompt's button has a fixed width in pixels

const Name button{0x80U};
const Name edit{0x81U};

struct Measure {
    QFontMetrics metrics;
    int unitX, unitY; // pixels of four dialog units across and of eight down

    explicit Measure(const QFont& font) : metrics(font)
    {
        const SIZE base = orvplatform::baseUnits(font);
        unitX = base.cx;
        unitY = base.cy;
    }

    int width(const std::u16string& text) const { return metrics.horizontalAdvance(QString::fromStdU16String(text)); }

    int heightWrapped(const std::u16string& text, int room) const
    {
        return metrics.boundingRect(QRect(0, 0, room, 100000), Qt::TextWordWrap, QString::fromStdU16String(text))
            .height();
    }
};

std::u16string withoutMarkup(const std::u16string& text)
{
    return utf16(std::regex_replace(utf8(text), std::regex("<[^>]*>"), ""));
}

// The texts that a control shows in its life: its own, or those that code puts there.
std::vector<std::u16string> textsOf(const Control& control, DialogKind kind,
                                    std::map<unsigned, std::u16string>& strings)
{
    if (kind == SignIn && control.id == 1037) {
        return {withoutMarkup(strings[122])};
    }
    if (kind == Settings && control.id == 1022) {
        return {strings[106], strings[107]};
    }
    if (kind == Settings && control.id == 1029) {
        return {std::get<std::u16string>(control.text), strings[120] + u"a.rather.long.name@company.example",
                strings[121]};
    }
    if (kind == Share && control.id == 1034) {
        return {strings[104]};
    }
    if (kind == Share && control.id == 1035) {
        return {strings[105]};
    }
    return {std::get<std::u16string>(control.text)};
}

class FitTest : public testing::TestWithParam<std::tuple<Language, int>>
{
protected:
    const Language& language() const { return std::get<0>(GetParam()); }
    int dpi() const { return std::get<1>(GetParam()); }
    // This process runs at 96 dots an inch; a larger font stands for a higher resolution.
    QFont font() const { return orvplatform::dialogFont("MS Shell Dlg", 8 * dpi() / 96); }
};

} // namespace

TEST_P(FitTest, HoldsForEveryText)
{
    const Measure measure(font());
    auto strings = stringsOf(resources(), language().tag);
    int checked = 0;
    for (int i = 0; i < DialogKindCount; ++i) {
        const auto kind = static_cast<DialogKind>(i);
        for (const Control& control : dialogOf(language(), kind).controls) {
            // The prompt's button keeps its pixels at every resolution; its letters shrink (resources.Layout).
            if (!(control.style & visible) || (kind == Prompt && dpi() > 96)) {
                continue;
            }
            int room = control.width * measure.unitX / 4;
            const int height = control.height * measure.unitY / 8;
            if (kind == Prompt) {
                room = promptButton;
            }
            if (kind == Toolbar) {
                room -= buttonPicture;
            }
            room -= control.className == button ? buttonFrame : control.className == edit ? editFrame : 0;
            for (const std::u16string& text : textsOf(control, kind, strings)) {
                SCOPED_TRACE(std::to_string(language().dialogs.at(kind)) + ", control " + std::to_string(control.id) +
                             ": " + utf8(text));
                const bool wraps = control.className != button && height >= 2 * measure.unitY;
                if (wraps) {
                    EXPECT_LE(measure.heightWrapped(text, room), height);
                } else {
                    EXPECT_LE(measure.width(text), room);
                }
                checked += !text.empty();
            }
        }
    }
    EXPECT_GE(checked, dpi() > 96 ? 19 : 20);
}

TEST_P(FitTest, IsInAFontThatHasEveryCharacter)
{
    static const std::map<std::string, QFontDatabase::WritingSystem> systems{
        {"ja", QFontDatabase::Japanese}, {"ko", QFontDatabase::Korean}, {"zh", QFontDatabase::SimplifiedChinese}};
    const auto own = systems.find(std::string(language().code));
    const QFontDatabase::WritingSystem system = own == systems.end() ? QFontDatabase::Latin : own->second;
    std::vector<QRawFont> fonts{QRawFont::fromFont(font()), QRawFont::fromFont(font(), system)};
    for (const QString& family : QFontDatabase::families(system)) {
        if (family.startsWith("DejaVu Sans") || family.startsWith("Noto Sans CJK")) { // of packages.txt
            fonts.push_back(QRawFont::fromFont(QFont(family)));
        }
    }
    std::u16string all;
    for (const auto& [id, text] : stringsOf(resources(), language().tag)) {
        all += text;
    }
    for (int i = 0; i < DialogKindCount; ++i) {
        const Dialog& dialog = dialogOf(language(), static_cast<DialogKind>(i));
        all += dialog.title;
        for (const Control& control : dialog.controls) {
            if (const auto* text = std::get_if<std::u16string>(&control.text)) {
                all += *text;
            }
        }
    }
    EXPECT_GT(all.size(), 500U);
    for (const char16_t character : all) {
        const bool isThere = std::any_of(fonts.begin(), fonts.end(), [character](const QRawFont& candidate) {
            return candidate.isValid() && candidate.supportsCharacter(QChar(character));
        });
        EXPECT_TRUE(isThere) << "U+" << std::hex << static_cast<unsigned>(character);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, FitTest,
                         testing::Combine(testing::ValuesIn(languages), testing::Values(96, 120, 144, 192)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).code) + std::to_string(std::get<1>(test.param));
                         });

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
