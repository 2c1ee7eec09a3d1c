#pragma once
// The drawing side of the task pane: a caption strip and, below it, groups as cards in a scrolled column.

#include "winuser.h"

#include <memory>
#include <string>
#include <vector>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

struct CMFCTasksPaneTaskGroup;

namespace orvplatform
{
inline constexpr const wchar_t* tasksPaneClass = L"OrvTasksPane";
HWND makeTasksPane(const CREATESTRUCTW& create, QWidget* parent);

using TaskGroups = std::vector<std::unique_ptr<CMFCTasksPaneTaskGroup>>;
// The list that the pane shows from now on. It belongs to the pane's object; null when that goes.
void setTaskGroups(HWND pane, const TaskGroups* groups, bool collapsible);
// Places the groups and their windows anew, and writes their rectangles into them.
void layoutTasks(HWND pane);
// Lets the groups' windows sleep and wake by what is in sight now; nothing while redrawing is off.
void wakeTasks(HWND pane);
// Wakes a window of the groups and brings a part of it, or all of it, into sight.
void scrollTo(HWND pane, HWND window, HWND part);
} // namespace orvplatform
