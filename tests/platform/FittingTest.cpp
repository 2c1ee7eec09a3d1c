// Texts that are longer than their controls, whose places are the program's.

#include "Form.h"

#include "platform/qt/ButtonControl.h"
#include "platform/qt/Native.h"
#include "platform/qt/StaticControl.h"
#include "tests/support/TextLayouts.h"

#include <QtWidgets>

using namespace orvplatform::testing;

namespace
{
class Fitting : public ::testing::Test
{
protected:
    Fitting()
    {
        registerTestResources();
        frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0);
    }
    QPushButton& makeButton(int width, int height, LPCWSTR text)
    {
        EXPECT_TRUE(button.Create(text, WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &frame, 1));
        return *qobject_cast<QPushButton*>(orvplatform::widgetOf(button.m_hWnd));
    }
    QLabel& makeLabel(int width, int height, LPCWSTR text)
    {
        EXPECT_TRUE(label.Create(text, WS_CHILD | WS_VISIBLE, CRect(0, 60, width, 60 + height), &frame, 2));
        return *qobject_cast<QLabel*>(orvplatform::widgetOf(label.m_hWnd));
    }
    // Where a control is drawn in something else than its background.
    static QRect ink(QWidget& widget)
    {
        const QImage drawn = widget.grab().toImage();
        QRect found;
        for (int y = 3; y < drawn.height() - 3; ++y)
            for (int x = 3; x < drawn.width() - 3; ++x)
                if (drawn.pixel(x, y) != drawn.pixel(3, 3))
                    found |= QRect(x, y, 1, 1);
        return found;
    }
    CWnd frame;
    CButton button;
    CStatic label;
};
} // namespace

TEST_F(Fitting, LeavesACaptionThatFitsAsItIs)
{
    const QPushButton& made = makeButton(220, 40, L"Login to Orvanta Cloud");
    const auto caption = orvplatform::fittedCaption(made);
    EXPECT_EQ(caption.text, made.text());
    EXPECT_EQ(caption.font, made.font());
}

TEST_F(Fitting, BreaksALongCaptionBeforeItShrinks)
{
    const QPushButton& made = makeButton(120, 40, L"Login to Orvanta Cloud");
    const auto caption = orvplatform::fittedCaption(made);
    EXPECT_EQ(caption.text.count(u'\n'), 1);
    EXPECT_EQ(QString(caption.text).replace(u'\n', u' '), made.text());
    EXPECT_EQ(QFontInfo(caption.font).pixelSize(), QFontInfo(made.font()).pixelSize());
}

TEST_F(Fitting, ShrinksTheLettersOfALargeFont)
{
    QPushButton& made = makeButton(220, 40, L"Iniciar sesi\u00f3n en Orvanta Cloud");
    QFont large = made.font();
    large.setPixelSize(21);
    made.setFont(large);
    const auto caption = orvplatform::fittedCaption(made);
    EXPECT_LT(QFontInfo(caption.font).pixelSize(), 21);
    EXPECT_GE(QFontInfo(caption.font).pixelSize(), 12);
    const QRect drawn = ink(made);
    EXPECT_GT(drawn.left(), 3);
    EXPECT_LT(drawn.right(), made.width() - 4);
    EXPECT_GT(drawn.height(), 20) << "two lines";
}

TEST_F(Fitting, LeavesACaptionThatNothingHelps)
{
    const QPushButton& made = makeButton(30, 16, L"Login to Orvanta Cloud");
    const auto caption = orvplatform::fittedCaption(made);
    EXPECT_EQ(caption.text, made.text());
    EXPECT_EQ(caption.font, made.font());
}

TEST_F(Fitting, ShrinksALabelThatWouldBeCut)
{
    QLabel& made = makeLabel(180, 15, L"Nov 15, 2026 16:11 PM");
    EXPECT_EQ(orvplatform::fittedFont(made), made.font());
    QFont large = made.font();
    large.setPixelSize(18);
    made.setFont(large);
    const QFont fitted = orvplatform::fittedFont(made);
    EXPECT_LT(QFontInfo(fitted).pixelSize(), 18);
    EXPECT_GE(QFontInfo(fitted).pixelSize(), 18 * 3 / 5);
    EXPECT_LE(QFontMetrics(fitted).horizontalAdvance(made.text()), 180);
    EXPECT_TRUE(made.rect().adjusted(0, 0, -1, -1).contains(ink(made)));
}

TEST_F(Fitting, LeavesALabelThatNothingHelps)
{
    const QLabel& made =
        makeLabel(60, 15, L"A text that goes on for far longer than any label of this width could show");
    EXPECT_EQ(orvplatform::fittedFont(made), made.font());
}

TEST_F(Fitting, KeepsALabelsTextInsideItsWindow)
{
    QLabel& made = makeLabel(180, 30, L"Nov 15, 2026\n16:11 PM");
    QFont font = made.font();
    font.setPixelSize(12);
    made.setFont(font);
    ASSERT_EQ(orvplatform::fittedFont(made), made.font());
    QWidget& window = *made.parentWidget();
    made.move(made.x(), window.height() - 26); // four lines of pixels stand below the window
    EXPECT_EQ(orvplatform::textRoom(made), QRect(0, 0, 180, 26));
    const QFont fitted = orvplatform::fittedFont(made);
    EXPECT_LT(QFontInfo(fitted).pixelSize(), 12);
    EXPECT_LE(2 * QFontMetrics(fitted).height(), 26);
}

TEST_F(Fitting, LeavesAShownButtonAtTheRightEndItsPlace)
{
    QLabel& made = makeLabel(180, 30, L"Nov 15, 2026 16:11 PM");
    QFont large = made.font();
    large.setPixelSize(18);
    made.setFont(large);
    ASSERT_TRUE(button.Create(L"", WS_CHILD, CRect(165, 60, 189, 84), &frame, 1));
    EXPECT_EQ(orvplatform::textRoom(made), made.contentsRect()) << "the button is hidden";
    button.ShowWindow(SW_SHOW);
    EXPECT_EQ(orvplatform::textRoom(made), QRect(0, 0, 165, 30));
    const QFont fitted = orvplatform::fittedFont(made);
    EXPECT_LT(QFontInfo(fitted).pixelSize(), 18);
    const QImage drawn = made.grab().toImage();
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 165; x < drawn.width(); ++x)
            ASSERT_EQ(drawn.pixel(x, y), drawn.pixel(179, 29)) << x << ", " << y;
    button.MoveWindow(0, 60, 24, 24);
    EXPECT_EQ(orvplatform::textRoom(made), made.contentsRect()) << "the button covers the beginning, which needs more";
}

TEST_F(Fitting, MeasuresALabelOnceForAsLongAsItStays)
{
    QLabel& made = makeLabel(180, 15, L"Nov 15, 2026 16:11 PM");
    QFont large = made.font();
    large.setPixelSize(18);
    made.setFont(large);
    const int before = orvtest::measuredTexts();
    const QImage first = made.grab().toImage();
    const int once = orvtest::measuredTexts() - before;
    EXPECT_GT(once, 1);
    EXPECT_EQ(made.grab().toImage(), first);
    EXPECT_EQ(orvtest::measuredTexts() - before, once);
    // Whatever it depends on makes it measure again.
    label.SetWindowText(L"Nov 16, 2026 16:11 PM");
    EXPECT_NE(made.grab().toImage(), first);
    EXPECT_GT(orvtest::measuredTexts() - before, once);
    const int twice = orvtest::measuredTexts();
    label.MoveWindow(0, 60, 180, 30);
    made.grab();
    EXPECT_GT(orvtest::measuredTexts(), twice);
    const int third = orvtest::measuredTexts();
    large.setPixelSize(17);
    made.setFont(large);
    made.grab();
    EXPECT_GT(orvtest::measuredTexts(), third);
}

TEST_F(Fitting, LaysATextOfPagesOutOnce)
{
    std::wstring text;
    while (text.size() < (std::size_t{1} << 20))
        text += L"A text of pages goes on and on. ";
    QLabel& made = makeLabel(180, 600'000, text.c_str());
    frame.MoveWindow(0, 0, 600, 601'000);
    frame.ShowWindow(SW_SHOW);
    const int measured = orvtest::measuredTexts();
    const int before = orvtest::laidOutLines();
    const auto part = [&made](int top) { return made.grab(QRect(0, top, 180, 200)).toImage(); };
    const QImage first = part(0);
    const int lines = orvtest::laidOutLines() - before;
    EXPECT_GT(lines, 10'000);
    const QImage below = part(300'000);
    EXPECT_EQ(part(0), first);
    EXPECT_EQ(orvtest::laidOutLines() - before, lines);
    EXPECT_EQ(orvtest::measuredTexts(), measured) << "its letters don't shrink";
    QImage blank(first);
    blank.fill(first.pixelColor(179, 0));
    EXPECT_NE(first, blank);
    EXPECT_NE(below, blank);
    label.SetWindowText((L"Other " + text).c_str());
    EXPECT_NE(part(0), first);
    frame.ShowWindow(SW_HIDE); // the lines are forgotten
    frame.ShowWindow(SW_SHOW);
    const int again = orvtest::laidOutLines();
    part(0);
    EXPECT_GT(orvtest::laidOutLines(), again + 10'000);
}

TEST_F(Fitting, DrawsALongTextLikeAShortOne)
{
    // Both begin alike; one has a character more than is laid out anew each time.
    std::wstring text;
    while (text.size() < 4095)
        text += L"word and\nword ";
    text.resize(4095);
    QLabel& made = makeLabel(180, 200, text.c_str());
    ASSERT_EQ(orvplatform::fittedFont(made), made.font());
    const QImage usual = made.grab().toImage();
    label.SetWindowText((text + L"x").c_str());
    const int before = orvtest::laidOutLines();
    EXPECT_EQ(made.grab().toImage(), usual);
    EXPECT_GT(orvtest::laidOutLines(), before);
    EXPECT_LT(orvtest::laidOutLines(), before + 40) << "no more than the label has room for";
    label.EnableWindow(FALSE);
    EXPECT_NE(made.grab().toImage(), usual);
}

TEST_F(Fitting, BreaksAWordOfPages)
{
    QLabel& made = makeLabel(180, 900'000, std::wstring(std::size_t{1} << 20, L'x').c_str());
    frame.MoveWindow(0, 0, 600, 901'000);
    const int before = orvtest::laidOutLines();
    const QImage drawn = made.grab(QRect(0, 400'000, 180, 100)).toImage();
    EXPECT_GT(orvtest::laidOutLines(), before + 10'000);
    QImage blank(drawn);
    blank.fill(drawn.pixelColor(179, 0));
    EXPECT_NE(drawn, blank);
}
