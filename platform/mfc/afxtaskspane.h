#pragma once
#include "afxdockablepane.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// One child window of a group.
struct CMFCTasksPaneTask {
    HWND m_hwndTask;
    int m_nWindowHeight; // pixels
    BOOL m_bAutoDestroyWindow;
    UINT m_uiCommandID;
};

struct CMFCTasksPaneTaskGroup {
    CString m_strName;
    BOOL m_bIsBottom = FALSE;
    BOOL m_bIsSpecial = FALSE;
    BOOL m_bIsCollapsed = FALSE;
    HICON m_hIcon = nullptr;
    COLORREF m_clrText = CLR_DEFAULT;
    COLORREF m_clrTextHot = CLR_DEFAULT;
    CRect m_rect;      // the whole group, pixels of the scrolled list; INT_MAX stands for all beyond
    CRect m_rectGroup; // the part below its title
    // Where it stands from top to bottom, in pixels of the list however long that is.
    struct Place {
        std::int64_t top = 0;
        std::int64_t body = 0; // its windows, below the title
        std::int64_t bottom = 0;
    } place;
    std::vector<CMFCTasksPaneTask> m_lstTasks;
};

// A vertically scrolling list of titled groups, below a caption strip of 20 pixels (40 from 120 DPI on). A group's
// child window takes the group's width and a given height; children of the pane are made hidden and shown when they are
// placed; those that are out of sight sleep (platform/qt/Sleep.h). While redrawing is off (SetRedraw), groups come and
// go without being laid out; all of it is made up for when it is on again.
class CMFCTasksPane : public CDockablePane
{
    DECLARE_DYNAMIC(CMFCTasksPane)
    DECLARE_MESSAGE_MAP()

public:
    CMFCTasksPane();
    ~CMFCTasksPane() override;

    void SetCaption(LPCWSTR caption);
    void EnableGroupCollapse(BOOL enable);        // before the window exists or after; true at first
    void EnableScrollButtons(BOOL enable = TRUE); // accepted; the list always scrolls with a bar
    void EnableNavigationToolbar(BOOL enable = TRUE, UINT bitmap = 0, CSize size = CSize(), CSize button = CSize());

    // Index of the new group. A special group has an emphasised title; an icon stays the caller's.
    int AddGroup(int page, LPCWSTR name, BOOL bottom = FALSE, BOOL special = FALSE, HICON icon = nullptr);
    int AddGroup(LPCWSTR name, BOOL bottom = FALSE, BOOL special = FALSE, HICON icon = nullptr);
    void RemoveGroup(int group);
    void RemoveAllGroups(int page = 0); // the groups' windows are hidden; only those to be destroyed are destroyed
    BOOL SetGroupName(int group, LPCWSTR name);
    BOOL SetGroupTextColor(int group, COLORREF colour, COLORREF hot = CLR_DEFAULT);
    BOOL CollapseGroup(int group, BOOL collapse = TRUE);
    // Places a child window in a group; index of the task, -1 for a bad group.
    int AddWindow(int group, HWND window, int height, BOOL autoDestroy = FALSE, UINT commandId = 0,
                  DWORD_PTR userData = 0);
    BOOL SetWindowHeight(HWND window, int height);
    int GetGroupCount() const;
    CMFCTasksPaneTaskGroup* GetTaskGroup(int group) const; // null outside the list
    virtual void RecalcLayout(BOOL redraw = TRUE);

protected:
    LPCWSTR GetWindowClass() const override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnSetRedraw(WPARAM redraw, LPARAM unused);

private:
    std::vector<std::unique_ptr<CMFCTasksPaneTaskGroup>> groups;
    BOOL collapsible = TRUE;
    bool redraws = true;
    std::vector<HWND> removed; // windows of groups that went while redrawing is off
};
