#pragma once
// The drawing side of the side bar: tabs over a stack of panes that can float and fold away.

#include "winuser.h"

#include <functional>
#include <string>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QIcon;
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
inline constexpr const wchar_t* outlookBarClass = L"OrvOutlookBar";
inline constexpr const wchar_t* outlookTabsClass = L"OrvOutlookTabs";
HWND makeOutlookBar(const CREATESTRUCTW& create, QWidget* parent);
HWND makeOutlookTabs(const CREATESTRUCTW& create, QWidget* parent);

// Puts a control into a frame of its own behind a new tab. Returns the frame, whose text is the tab's title.
HWND addPane(HWND tabs, HWND control, const std::wstring& title, bool canFloat, bool canFold, bool canResize);
// The picture in the tab and the one in the strip, each shown at its own size; either may be null.
void setPaneIcons(HWND tabs, int index, const QIcon& tab, const QIcon& strip);
void showPane(HWND tabs, int index);
void onPaneChosen(HWND tabs, std::function<void(int index)> chosen);
void floatPane(HWND tabs, int index, bool floating);
bool isPaneFloating(HWND tabs, int index);
// Unpins the panes: a strip of icons stands in their place, and the bar's sizeHint asks for its width. Pins them again.
void foldPanes(HWND tabs, bool fold);
bool arePanesFolded(HWND tabs);
// What a click on an icon of the strip does: the pane comes out over the window, with the focus. It goes when the focus
// leaves it, by a click beside it and by Escape.
void slidePaneOut(HWND tabs, int index);
bool arePanesSlidOut(HWND tabs);
// Before the end: a pane that floats or is slid out is the window's, which would keep it for longer than the library
// that its control comes from.
void gatherPanes(HWND tabs);
// The keyboard goes to the active pane, wherever that stands, and slides it out where the panes are unpinned; false
// where there is none.
bool focusPane(HWND tabs);
bool hasPaneFocus(HWND tabs); // the panes and what belongs to them
} // namespace orvplatform
