#include "Form.h"

#include "platform/qt/LinkControl.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/RibbonWidget.h"

#include <QtWidgets>

using namespace orvplatform;
using namespace orvplatform::testing;

namespace
{
class Look : public ::testing::Test
{
protected:
    Look() { ensureApplication(); }
    ~Look() override
    {
        qunsetenv("ORVANTA_THEME");
        useSystemColour(Qt::white);
    }
    static void useSystemColour(QColor window)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        QApplication::setPalette(palette);
    }
};
} // namespace

TEST_F(Look, FollowsTheSystemBetweenLightAndDark)
{
    ASSERT_FALSE(theme().dark);
    QPushButton button;
    button.ensurePolished();
    useSystemColour(QColor(0x202020));
    EXPECT_TRUE(theme().dark);
    EXPECT_EQ(QGuiApplication::palette().color(QPalette::Window), theme().window);
    EXPECT_TRUE(qApp->styleSheet().contains(theme().surface.name()));
    useSystemColour(QColor(0xF0F0F0));
    EXPECT_FALSE(theme().dark);
    EXPECT_EQ(QGuiApplication::palette().color(QPalette::WindowText), theme().text);
}

TEST_F(Look, ColoursTheRibbonAnew)
{
    CWnd frame;
    frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 900, 400), nullptr, 0);
    CMFCRibbonBar ribbon;
    ribbon.Create(&frame);
    useSystemColour(QColor(0x202020));
    EXPECT_EQ(widgetOf(ribbon.m_hWnd)->palette().color(QPalette::Window), theme().surface);
}

TEST_F(Look, ColoursTheLinksOfATextAnew)
{
    CWnd frame;
    frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 300, 100), nullptr, 0);
    HWND text = CreateWindowExW(0, L"SysLink", L"See <a href=\"http://a.test\">that</a>", WS_CHILD, 0, 0, 200, 50,
                                frame.m_hWnd, nullptr, nullptr, nullptr);
    const auto* label = qobject_cast<QLabel*>(widgetOf(text));
    ASSERT_NE(label, nullptr);
    const QColor light = theme().accentText;
    EXPECT_TRUE(label->text().contains(light.name()));
    useSystemColour(QColor(0x202020));
    ASSERT_NE(theme().accentText, light);
    EXPECT_TRUE(label->text().contains(theme().accentText.name())) << label->text().toStdString();
    EXPECT_FALSE(label->text().contains(light.name()));
    EXPECT_TRUE(followLink(text, L"http://a.test"));
}

TEST_F(Look, TakesTheUsersWordBeforeTheSystems)
{
    qputenv("ORVANTA_THEME", "dark");
    useSystemColour(QColor(0xFAFAFA));
    EXPECT_TRUE(theme().dark);
}

TEST_F(Look, IsReadable)
{
    // The contrast of two colours by the usual formula of relative luminance (WCAG 2).
    const auto luminance = [](QColor colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const auto contrast = [&](QColor one, QColor other) {
        const double a = luminance(one) + 0.05, b = luminance(other) + 0.05;
        return std::max(a, b) / std::min(a, b);
    };
    for (const char* wish : {"light", "dark"}) {
        qputenv("ORVANTA_THEME", wish);
        useSystemColour(QColor(0x808080));
        const Theme& t = theme();
        EXPECT_GE(contrast(t.text, t.window), 7) << wish;
        EXPECT_GE(contrast(t.mutedText, t.surface), 4.5) << wish;
        EXPECT_GE(contrast(t.accentText, t.window), 4.5) << wish;
        EXPECT_GE(contrast(t.onAccent, t.accent), 3.9) << wish;
    }
}
