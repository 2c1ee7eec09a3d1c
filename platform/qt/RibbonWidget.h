#pragma once
// The drawing side of the ribbon: tabs over one row of titled panels. Where the row is too long, panels turn one by one
// into columns of three small buttons, those with most buttons first, then lose their captions; a row that is still too
// long scrolls. The height is always the same, and no state of a button changes a size. F10 goes to the first button,
// Tab and the arrows from one to the next, Enter and the space bar press it, Escape goes back.

#include "winuser.h"

#include <QIcon>
#include <QString>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
struct RibbonHooks;

inline constexpr const wchar_t* ribbonClass = L"OrvRibbon";
HWND makeRibbon(const CREATESTRUCTW& create, QWidget* parent);

struct RibbonButton {
    UINT id;
    QString text;
    QString toolTip;
    QIcon large;
    QIcon small;
};
struct RibbonPanel {
    QString name;
    std::vector<RibbonButton> buttons;
    bool keepsLarge = false; // gives way to a lack of width after all others
};
struct RibbonPage {
    QString name;
    std::vector<RibbonPanel> panels;
};

// What the ribbon shows; asked for when the ribbon is drawn after a change.
using RibbonSource = std::function<std::vector<RibbonPage>()>;
void setRibbonSource(HWND ribbon, RibbonSource source, std::function<void(int page)> onPage);
void ribbonChanged(HWND ribbon);
void showRibbonPage(HWND ribbon, int page);
void setRibbonHooks(HWND ribbon, RibbonHooks hooks);
void updateRibbon(HWND ribbon);              // enabled and checked states, after outstanding changes
bool focusRibbon(HWND ribbon);               // what F10 does; false where no button can be gone to
QWidget* ribbonButton(HWND ribbon, UINT id); // null when it is not shown
} // namespace orvplatform
