#pragma once
// The window object. It is attached to at most one window handle; a window's destruction detaches it.

#include "afxcmdtarget.h"
#include "afxgdi.h"

struct CCreateContext;
class CDataExchange;

class CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)
    DECLARE_MESSAGE_MAP()

public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    ~CWnd() override; // destroys the window

    // Handles and objects. FromHandle makes a temporary object, owned by the toolkit, for a window without one; its
    // class is that of the control (CEdit, CButton, CStatic, CLinkCtrl).
    static CWnd* FromHandle(HWND window);
    static CWnd* FromHandlePermanent(HWND window);
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    BOOL Attach(HWND window);
    HWND Detach();
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow();

    // Creation. False when the window could not be made; the object is then unattached.
    virtual BOOL Create(LPCWSTR className, LPCWSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                        CCreateContext* context = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                  LPVOID parameter = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height,
                  HWND parent, HMENU idOrMenu, LPVOID parameter = nullptr);
    virtual BOOL DestroyWindow();

    // Place in the tree.
    CWnd* GetParent() const;
    CWnd* GetAncestor(UINT flags) const;
    CWnd* GetTopLevelParent() const;
    CWnd* SetParent(CWnd* parent);
    CWnd* GetDlgItem(int id) const; // null when there is none
    void GetDlgItem(int id, HWND* window) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int id);

    // Text, font, icon.
    void SetWindowText(LPCWSTR text) { SetWindowTextW(text); }
    int GetWindowText(LPWSTR buffer, int size) const { return GetWindowTextW(buffer, size); }
    void GetWindowText(CString& text) const { GetWindowTextW(text); }
    int GetWindowTextLength() const { return GetWindowTextLengthW(); }
    void SetWindowTextW(LPCWSTR text);
    int GetWindowTextW(LPWSTR buffer, int size) const;
    void GetWindowTextW(CString& text) const;
    int GetWindowTextLengthW() const;
    void SetDlgItemText(int id, LPCWSTR text);
    int GetDlgItemText(int id, CString& text) const;
    void SetFont(CFont* font, BOOL redraw = TRUE); // the font stays the caller's and must outlive its use here
    CFont* GetFont() const;
    HICON SetIcon(HICON icon, BOOL big); // returns the earlier icon
    HICON GetIcon(BOOL big) const;

    // Place and state. Pixels of the parent's client area; of the screen for a top-level window.
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    void GetClientRect(LPRECT rect) const;
    void GetWindowRect(LPRECT rect) const;
    void ScreenToClient(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const;
    void ClientToScreen(LPPOINT point) const;
    void CenterWindow(CWnd* other = nullptr);
    BOOL ShowWindow(int command);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;
    CWnd* SetFocus();
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    void SetRedraw(BOOL redraw = TRUE); // nothing is drawn while it is off
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT rect = nullptr, void* region = nullptr, UINT flags = RDW_INVALIDATE | RDW_UPDATENOW);
    CDC* GetDC();
    int ReleaseDC(CDC* context);

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    // Moves data between the controls and the object's fields; TRUE saves. False when a value was refused.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    virtual BOOL PreCreateWindow(CREATESTRUCT& create);
    virtual void PreSubclassWindow();
    virtual BOOL PreTranslateMessage(MSG* message);
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual void PostNcDestroy(); // the last call that the window makes; an object on the heap deletes itself here
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Default(); // default handling of the message on its way

    // Handlers for ON_WM_...; each does the default handling.
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnSetFocus(CWnd* earlier);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);

private:
    friend class CDialog;
    friend class CPropertySheet;
    friend LRESULT AfxCallWndProc(CWnd* window, HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    void attachPermanently(HWND window);
};
