// Every text fits into its control, in every language, with dialog units derived from the font as the template format
// defines them: a quarter of the average character's width, an eighth of the line's height.
#include "resources/Expected.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <gtest/gtest.h>

#include <regex>

using namespace restest;

namespace
{

constexpr std::uint32_t visible = 0x10000000;
constexpr int fontPixels = 11;    // 8 points at 96 dots an inch
constexpr int buttonFrame = 12;   // both sides of a button's text, in pixels
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
        const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
        unitX = (metrics.horizontalAdvance(letters) / 26 + 1) / 2;
        unitY = metrics.height();
    }

    int width(const std::u16string& text) const { return metrics.horizontalAdvance(QString::fromStdU16String(text)); }

    int heightWrapped(const std::u16string& text, int room) const
    {
        return metrics.boundingRect(QRect(0, 0, room, 100000), Qt::TextWordWrap, QString::fromStdU16String(text))
            .height();
    }
};

QFont standIn()
{
    QFont font("MS Shell Dlg");
    font.setPixelSize(fontPixels);
    return font;
}

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

class FitTest : public testing::TestWithParam<Language>
{
};

} // namespace

TEST_P(FitTest, HoldsForEveryText)
{
    const Measure measure(standIn());
    auto strings = stringsOf(resources(), GetParam().tag);
    int checked = 0;
    for (int i = 0; i < DialogKindCount; ++i) {
        const auto kind = static_cast<DialogKind>(i);
        for (const Control& control : dialogOf(GetParam(), kind).controls) {
            if (!(control.style & visible)) {
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
                SCOPED_TRACE(std::to_string(GetParam().dialogs.at(kind)) + ", control " + std::to_string(control.id) +
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
    EXPECT_GE(checked, 20);
}

INSTANTIATE_TEST_SUITE_P(Languages, FitTest, testing::ValuesIn(languages),
                         [](const auto& test) { return std::string(test.param.code); });

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
