#include "afxtaskspane.h"

#include "platform/qt/Sleep.h"
#include "platform/qt/TasksWidget.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

IMPLEMENT_DYNAMIC(CDockablePane, CWnd)
IMPLEMENT_DYNAMIC(CMFCTasksPane, CDockablePane)

BEGIN_MESSAGE_MAP(CMFCTasksPane, CDockablePane)
ON_WM_CREATE()
ON_WM_SIZE()
ON_MESSAGE(WM_SETREDRAW, &CMFCTasksPane::OnSetRedraw)
END_MESSAGE_MAP()

BOOL CDockablePane::Create(LPCWSTR caption, CWnd* parent, const RECT& rect, BOOL, UINT id, DWORD style, DWORD,
                           DWORD barStyle, CCreateContext* context)
{
    controlBarStyle = barStyle;
    return CWnd::Create(GetWindowClass(), caption, style, rect, parent, id, context);
}

LPCWSTR CDockablePane::GetWindowClass() const
{
    return L"OrvPane";
}

CMFCTasksPane::CMFCTasksPane() = default;

CMFCTasksPane::~CMFCTasksPane()
{
    orvplatform::setTaskGroups(m_hWnd, nullptr, false);
}

LPCWSTR CMFCTasksPane::GetWindowClass() const
{
    return orvplatform::tasksPaneClass;
}

int CMFCTasksPane::OnCreate(LPCREATESTRUCT create)
{
    if (CDockablePane::OnCreate(create) == -1)
        return -1;
    orvplatform::setTaskGroups(m_hWnd, &groups, collapsible != FALSE);
    return 0;
}

void CMFCTasksPane::OnSize(UINT type, int width, int height)
{
    CDockablePane::OnSize(type, width, height);
    RecalcLayout(FALSE);
}

void CMFCTasksPane::SetCaption(LPCWSTR caption)
{
    SetWindowText(caption);
}

void CMFCTasksPane::EnableGroupCollapse(BOOL enable)
{
    collapsible = enable;
    if (!enable)
        for (const auto& group : groups)
            group->m_bIsCollapsed = FALSE;
    orvplatform::setTaskGroups(m_hWnd, &groups, enable != FALSE);
    RecalcLayout();
}

void CMFCTasksPane::EnableScrollButtons(BOOL) {}
void CMFCTasksPane::EnableNavigationToolbar(BOOL, UINT, CSize, CSize) {}

int CMFCTasksPane::AddGroup(int, LPCWSTR name, BOOL bottom, BOOL special, HICON icon)
{
    auto group = std::make_unique<CMFCTasksPaneTaskGroup>();
    group->m_strName = name;
    group->m_bIsBottom = bottom;
    group->m_bIsSpecial = special;
    group->m_hIcon = icon;
    groups.push_back(std::move(group));
    RecalcLayout();
    return GetGroupCount() - 1;
}

int CMFCTasksPane::AddGroup(LPCWSTR name, BOOL bottom, BOOL special, HICON icon)
{
    return AddGroup(0, name, bottom, special, icon);
}

void CMFCTasksPane::RemoveGroup(int group)
{
    if (!GetTaskGroup(group))
        return;
    // Taken out first: the end of a window may come back here.
    const auto place = groups.begin() + group;
    const std::unique_ptr<CMFCTasksPaneTaskGroup> taken = std::move(*place);
    groups.erase(place);
    for (const CMFCTasksPaneTask& task : taken->m_lstTasks) {
        const bool isHere = ::GetParent(task.m_hwndTask) == m_hWnd; // and not with another parent by now
        if (isHere)
            orvplatform::setPlaced(task.m_hwndTask, false);
        if (task.m_bAutoDestroyWindow)
            ::DestroyWindow(task.m_hwndTask);
        else if (!isHere)
            continue;
        else if (redraws)
            ::ShowWindow(task.m_hwndTask, SW_HIDE);
        else
            removed.push_back(task.m_hwndTask); // it may be back in a group before anybody sees it go
    }
    RecalcLayout();
}

void CMFCTasksPane::RemoveAllGroups(int)
{
    while (!groups.empty())
        RemoveGroup(GetGroupCount() - 1);
}

BOOL CMFCTasksPane::SetGroupName(int index, LPCWSTR name)
{
    CMFCTasksPaneTaskGroup* group = GetTaskGroup(index);
    if (!group)
        return FALSE;
    group->m_strName = name;
    RecalcLayout();
    return TRUE;
}

BOOL CMFCTasksPane::SetGroupTextColor(int index, COLORREF colour, COLORREF hot)
{
    CMFCTasksPaneTaskGroup* group = GetTaskGroup(index);
    if (!group)
        return FALSE;
    group->m_clrText = colour;
    group->m_clrTextHot = hot;
    Invalidate();
    return TRUE;
}

BOOL CMFCTasksPane::CollapseGroup(int index, BOOL collapse)
{
    CMFCTasksPaneTaskGroup* group = GetTaskGroup(index);
    if (!group || !collapsible)
        return FALSE;
    group->m_bIsCollapsed = collapse;
    RecalcLayout();
    return TRUE;
}

int CMFCTasksPane::AddWindow(int index, HWND window, int height, BOOL autoDestroy, UINT commandId, DWORD_PTR)
{
    CMFCTasksPaneTaskGroup* group = GetTaskGroup(index);
    if (!group || !IsWindow(window))
        return -1;
    group->m_lstTasks.push_back({window, std::max(height, 0), autoDestroy, commandId});
    orvplatform::setPlaced(window, true);
    RecalcLayout();
    return static_cast<int>(group->m_lstTasks.size()) - 1;
}

BOOL CMFCTasksPane::SetWindowHeight(HWND window, int height)
{
    for (const auto& group : groups) {
        for (CMFCTasksPaneTask& task : group->m_lstTasks) {
            if (task.m_hwndTask == window) {
                task.m_nWindowHeight = std::max(height, 0);
                RecalcLayout();
                return TRUE;
            }
        }
    }
    return FALSE;
}

int CMFCTasksPane::GetGroupCount() const
{
    return static_cast<int>(groups.size());
}

CMFCTasksPaneTaskGroup* CMFCTasksPane::GetTaskGroup(int group) const
{
    return group >= 0 && group < GetGroupCount() ? groups[static_cast<std::size_t>(group)].get() : nullptr;
}

LRESULT CMFCTasksPane::OnSetRedraw(WPARAM redraw, LPARAM)
{
    redraws = redraw != 0;
    if (!redraws)
        return Default();
    std::unordered_set<HWND> placed;
    for (const auto& group : groups)
        for (const CMFCTasksPaneTask& task : group->m_lstTasks)
            placed.insert(task.m_hwndTask);
    for (HWND window : std::exchange(removed, {}))
        if (!placed.contains(window))
            ::ShowWindow(window, SW_HIDE);
    RecalcLayout(FALSE);
    return Default();
}

void CMFCTasksPane::RecalcLayout(BOOL redraw)
{
    if (!redraws)
        return;
    orvplatform::layoutTasks(m_hWnd);
    if (redraw)
        Invalidate();
}
