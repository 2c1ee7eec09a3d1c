#pragma once
// The one bridge between this layer and programs that use Qt themselves (the viewer).
//
// The viewer builds its panels with the plain toolkit API and gives them its own pictures through this header:
//
//     CMFCRibbonBar ribbon;
//     ribbon.Create(orvplatform::windowOf(mainWindow));
//     mainWindow->setMenuWidget(orvplatform::widgetOf(ribbon.m_hWnd));
//     auto* home = ribbon.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OwnCategory));
//     int image = orvplatform::addPicture(home->GetLargeImages(), QIcon(":/icons/open.svg"));
//     home->AddPanel(L"File")->Add(new CMFCRibbonButton(ID_OPEN, L"Open", -1, image));
//     orvplatform::setRibbonHooks(ribbon, {onCommand, isEnabled});
//
// A side bar's widget goes into the window in the same way. Its width is the viewer's; the bar asks for a strip when it
// is folded (the widget's sizeHint changes).

#include "afxcontrolbars.h"

#include <QIcon>
#include <QPixmap>

#include <functional>

QT_BEGIN_NAMESPACE
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Windows and widgets. handleOf makes a handle for a widget that has none; both take null. A widget's handle ends with
// it.
QWidget* widgetOf(HWND window);
HWND handleOf(QWidget* widget);
CWnd* windowOf(QWidget* widget); // CWnd::FromHandle of its handle

// The window over which dialogs without a parent open, and AfxGetMainWnd's answer.
void setMainWindow(QWidget* widget);

// Pictures. The results belong to the caller.
QPixmap pixmapOf(HBITMAP bitmap);
QPixmap pixmapOf(HICON icon);
HBITMAP bitmapOf(const QPixmap& pixmap);
HICON iconOf(const QIcon& icon, int size); // pixels
// Adds a picture in the list's size and returns its index.
int addPicture(CMFCToolBarImages& images, const QIcon& icon);

// How a ribbon meets its program. The queries are asked while the program is idle and may be empty: enabled, unchecked,
// no menu. A menu stays the program's.
struct RibbonHooks {
    std::function<void(UINT command)> onCommand;
    std::function<bool(UINT command)> isEnabled;
    std::function<bool(UINT command)> isChecked;
    std::function<QMenu*(UINT command)> menuOf;
};
void setRibbonHooks(CMFCRibbonBar& ribbon, RibbonHooks hooks);
void refreshRibbon(CMFCRibbonBar& ribbon); // asks the queries now

// The keyboard's way into a ribbon, to its first enabled button (Escape leads back), and into a side bar, to the
// control of its active pane that had the focus last, or the first one. False where there is nothing to go to.
bool focusRibbon(CMFCRibbonBar& ribbon);
bool focusSideBar(CMFCOutlookBar& bar);
bool hasSideBarFocus(CMFCOutlookBar& bar); // its panes may float or be slid out

// A page of a property sheet that is a widget of the program. The sheet's window takes the widget over; `onApply` runs
// when the sheet is accepted or applied.
void addWidgetPage(CMFCPropertySheet& sheet, QWidget* page, const QString& title, std::function<void()> onApply = {});
} // namespace orvplatform
