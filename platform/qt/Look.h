#pragma once
// The house style in one place: colours, measures and the style sheet of the windows, for this layer and the viewer.

#include <QColor>
#include <QString>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QApplication;
QT_END_NAMESPACE

namespace orvplatform
{
struct Theme {
    bool dark;
    QColor window;  // behind everything
    QColor surface; // cards, panels, buttons
    QColor field;   // where text is typed
    QColor border;  // hairlines
    QColor text;
    QColor mutedText;  // captions, prompts, disabled
    QColor accent;     // fills
    QColor accentText; // the accent as letters on window and surface
    QColor onAccent;   // letters on the accent
    QColor hover;
    QColor pressed;
};

// Light or dark after the system's palette, which the look follows while the program runs; the environment variable
// ORVANTA_THEME ("light" or "dark") decides before it. Colours that are kept are to be asked for again at
// QEvent::PaletteChange.
const Theme& theme();

// Style, palette and style sheet of the application. Call it once, after the application object is made.
void applyLook(QApplication& application);

// A colour that somebody chose for a light background, made readable on the theme's.
QColor readable(QColor colour);

int scaled(int pixels); // a measure of the plain resolution at the display's
int sideBarWidth();     // pixels at the display's resolution: its forms grow with their font

namespace measures // pixels, on a grid of four
{
inline constexpr int grid = 4;
inline constexpr int gap = 8;
inline constexpr int radius = 4;
inline constexpr int cardTitle = 28;
inline constexpr int largeIcon = 32;
inline constexpr int smallIcon = 16;
inline constexpr int foldedSideBar = 36; // for small icons
} // namespace measures
} // namespace orvplatform
