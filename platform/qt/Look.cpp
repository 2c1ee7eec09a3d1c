#include "platform/qt/Look.h"

#include "platform/Process.h"

#include <QtWidgets>

#include <optional>

namespace orvplatform
{
namespace
{
const Theme light{false,    0xF4F5F7, 0xFFFFFF, 0xFFFFFF, 0xD8DCE1, 0x1E2227,
                  0x646C75, 0x2F6FDE, 0x2563CF, 0xFFFFFF, 0xEBEEF2, 0xDDE2E9};
const Theme dark{true,     0x1E2023, 0x292C30, 0x232629, 0x3D4147, 0xE5E7EA,
                 0x9AA2AB, 0x3F7DE8, 0x7FAEFF, 0xFFFFFF, 0x34383D, 0x40454B};

QString styleSheet(const Theme& t)
{
    QString sheet = QStringLiteral(R"(
QPushButton { background: @surface; color: @text; border: 1px solid @border; border-radius: 4px; padding: 1px 8px; }
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:focus { border-color: @accent; }
QPushButton:disabled { color: @muted; background: @window; }
QPushButton[primary="true"] { background: @accent; color: @onAccent; border-color: @accent; }
QPushButton[primary="true"]:focus { border-color: @text; }
QPushButton[primary="true"]:disabled { background: @pressed; color: @muted; border-color: @border; }
QPushButton[flatPicture="true"] { background: transparent; border-color: transparent; padding: 0; }
QPushButton[flatPicture="true"]:hover { background: @hover; border-color: @border; }
QPushButton[flatPicture="true"]:focus { border-color: @accent; }
QPushButton[webLink="true"] { background: transparent; color: @link; border: none; padding: 0; text-align: left; }
QPushButton[webLink="true"]:hover, QPushButton[webLink="true"]:focus { text-decoration: underline; }
QLineEdit, QPlainTextEdit { background: @field; color: @text; border: 1px solid @border; border-radius: 4px;
    padding: 0 2px; selection-background-color: @accent; selection-color: @onAccent; }
QLineEdit:focus, QPlainTextEdit:focus { border-color: @accent; }
QGroupBox { border: 1px solid @border; border-radius: 4px; margin-top: 6px; color: @text; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 4px; color: @text; padding: 2px; }
QToolButton:hover { background: @hover; }
QToolButton:pressed, QToolButton:checked { background: @pressed; }
QToolButton:focus { border-color: @accent; }
QToolButton:disabled { color: @muted; }
QToolButton::menu-indicator { image: none; }
QTabBar::tab { background: transparent; color: @muted; border: none; border-bottom: 2px solid transparent;
    padding: 5px 12px; }
QTabBar::tab:hover { color: @text; background: @hover; }
QTabBar::tab:selected { color: @text; border-bottom-color: @accent; }
#sheetPages { background: transparent; outline: 0; }
#sheetPages::item { padding: 6px 8px; border-radius: 4px; color: @text; }
#sheetPages::item:hover { background: @hover; }
#sheetPages::item:selected { background: @accent; color: @onAccent; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar::handle:vertical { background: @border; border-radius: 3px; min-height: 32px; margin: 2px; }
QScrollBar::handle:vertical:hover { background: @muted; }
QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page { background: none; height: 0; }
QToolTip { background: @surface; color: @text; border: 1px solid @border; padding: 4px; }
)");
    const std::pair<const char*, QColor> colours[] = {
        {"@window", t.window},     {"@surface", t.surface}, {"@field", t.field},    {"@border", t.border},
        {"@text", t.text},         {"@muted", t.mutedText}, {"@accent", t.accent},  {"@link", t.accentText},
        {"@onAccent", t.onAccent}, {"@hover", t.hover},     {"@pressed", t.pressed}};
    for (const auto& [name, colour] : colours)
        sheet.replace(QRegularExpression(QLatin1String(name) + QLatin1String("\\b")), colour.name());
    return sheet;
}
} // namespace

namespace
{
std::optional<bool> chosenDark; // empty before the first question

bool isDarkWanted()
{
    const QByteArray wish = qgetenv("ORVANTA_THEME");
    if (wish == "dark" || wish == "light")
        return wish == "dark";
    return qApp && QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

void paint(QApplication& application)
{
    const Theme& t = theme();
    QPalette palette;
    palette.setColor(QPalette::Window, t.window);
    palette.setColor(QPalette::WindowText, t.text);
    palette.setColor(QPalette::Base, t.field);
    palette.setColor(QPalette::AlternateBase, t.window);
    palette.setColor(QPalette::Text, t.text);
    palette.setColor(QPalette::PlaceholderText, t.mutedText);
    palette.setColor(QPalette::Button, t.surface);
    palette.setColor(QPalette::ButtonText, t.text);
    palette.setColor(QPalette::Highlight, t.accent);
    palette.setColor(QPalette::HighlightedText, t.onAccent);
    palette.setColor(QPalette::Link, t.accentText);
    palette.setColor(QPalette::ToolTipBase, t.surface);
    palette.setColor(QPalette::ToolTipText, t.text);
    palette.setColor(QPalette::Light, t.surface);
    palette.setColor(QPalette::Mid, t.border);
    palette.setColor(QPalette::Dark, t.border);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, t.mutedText);
    application.setPalette(palette);
    application.setStyleSheet(styleSheet(t));
}

// Follows the system between light and dark while the program runs.
class Follower final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* app = static_cast<const QApplication*>(parent());
        if (event->type() == QEvent::ApplicationPaletteChange && watched == app && !painting &&
            QGuiApplication::palette().color(QPalette::Window) != theme().window)
            follow();
        if (event->type() == QEvent::ThemeChange && watched->isWindowType() && !painting && !asked) {
            asked = true;
            QMetaObject::invokeMethod(
                this, [this] { askSystem(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void askSystem()
    {
        asked = false;
        painting = true;
        QApplication::setPalette(QPalette()); // the system's own comes out from under the theme's
        painting = false;
        follow();
    }
    void follow()
    {
        painting = true;
        chosenDark = isDarkWanted();
        paint(*static_cast<QApplication*>(parent()));
        painting = false;
    }
    bool painting = false;
    bool asked = false;
};
} // namespace

int scaled(int pixels)
{
    return qRound(pixels * logicalDpi() / 96.0);
}

int sideBarWidth()
{
    return scaled(320);
}

const Theme& theme()
{
    if (!chosenDark)
        chosenDark = isDarkWanted();
    return *chosenDark ? dark : light;
}

void applyLook(QApplication& application)
{
    chosenDark = isDarkWanted();
    application.setStyle(QStringLiteral("Fusion"));
    paint(application);
    application.installEventFilter(new Follower(&application));
}

QColor readable(QColor colour)
{
    const bool tooClose = std::abs(colour.lightness() - theme().surface.lightness()) < 80;
    return tooClose ? theme().text : colour;
}
} // namespace orvplatform
