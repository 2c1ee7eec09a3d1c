// The window object: its handle, its messages, its creation and its end.
#include "afxcmn.h"
#include "afxdlg.h"

#include "platform/qt/WindowCreation.h"

#include <memory>
#include <unordered_map>
#include <utility>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace
{
std::unordered_map<HWND, CWnd*>& permanent()
{
    static auto& map = *new std::unordered_map<HWND, CWnd*>;
    return map;
}
std::unordered_map<HWND, std::unique_ptr<CWnd>>& temporary()
{
    static auto& map = *new std::unordered_map<HWND, std::unique_ptr<CWnd>>;
    return map;
}

// The message on its way, for Default().
MSG currentMessage{};

LRESULT AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    return object ? AfxCallWndProc(object, window, message, wParam, lParam)
                  : DefWindowProcW(window, message, wParam, lParam);
}

std::unique_ptr<CWnd> makeTemporary(HWND window)
{
    switch (orvplatform::controlKind(window)) {
    case orvplatform::ControlKind::Button:
        return std::make_unique<CButton>();
    case orvplatform::ControlKind::Edit:
        return std::make_unique<CEdit>();
    case orvplatform::ControlKind::Static:
        return std::make_unique<CStatic>();
    case orvplatform::ControlKind::Links:
        return std::make_unique<CLinkCtrl>();
    default:
        return std::make_unique<CWnd>();
    }
}
} // namespace

LRESULT AfxCallWndProc(CWnd* window, HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    struct Restore {
        MSG outer;
        ~Restore() { currentMessage = outer; }
    } restore{std::exchange(currentMessage, MSG{handle, message, wParam, lParam, 0, {}})};
    return window->WindowProc(message, wParam, lParam);
}

CWnd* orvmsg::windowFromHandle(HWND window)
{
    return CWnd::FromHandle(window);
}

CWnd::~CWnd()
{
    if (!m_hWnd)
        return;
    if (FromHandlePermanent(m_hWnd) == this) {
        HWND window = Detach(); // nobody is left to hear the window's last messages
        ::DestroyWindow(window);
    }
}

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    const auto known = permanent().find(window);
    return known == permanent().end() ? nullptr : known->second;
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (CWnd* object = FromHandlePermanent(window))
        return object;
    if (!IsWindow(window))
        return nullptr;
    std::unique_ptr<CWnd>& object = temporary()[window];
    if (!object) {
        object = makeTemporary(window);
        object->m_hWnd = window;
        orvplatform::whenGone(window, [window] { temporary().erase(window); });
    }
    return object.get();
}

void CWnd::attachPermanently(HWND window)
{
    m_hWnd = window;
    permanent()[window] = this;
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc));
}

BOOL CWnd::Attach(HWND window)
{
    if (!IsWindow(window) || m_hWnd)
        return FALSE;
    m_hWnd = window;
    permanent()[window] = this;
    return TRUE;
}

HWND CWnd::Detach()
{
    HWND window = std::exchange(m_hWnd, nullptr);
    if (window && FromHandlePermanent(window) == this) {
        permanent().erase(window);
        SetWindowLongPtrW(window, GWLP_WNDPROC, 0);
    }
    return window;
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!IsWindow(window) || m_hWnd || FromHandlePermanent(window))
        return FALSE;
    attachPermanently(window);
    PreSubclassWindow();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    return SubclassWindow(::GetDlgItem(parent ? parent->m_hWnd : nullptr, static_cast<int>(id)));
}

HWND CWnd::UnsubclassWindow()
{
    return Detach();
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                  CCreateContext*)
{
    return CreateEx(0, className, name, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, LPVOID parameter)
{
    return CreateEx(exStyle, className, name, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent ? parent->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<LONG_PTR>(static_cast<int>(id))), parameter);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height,
                    HWND parent, HMENU idOrMenu, LPVOID parameter)
{
    CREATESTRUCTW create{parameter, AfxGetInstanceHandle(),   idOrMenu, parent,    height, width, y,
                         x,         static_cast<LONG>(style), name,     className, exStyle};
    if (m_hWnd || !PreCreateWindow(create)) {
        PostNcDestroy();
        return FALSE;
    }
    return orvplatform::createWindow(create, [this](HWND window) {
               attachPermanently(window);
               PreSubclassWindow();
           }) != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd ? ::DestroyWindow(m_hWnd) : FALSE;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT&)
{
    return TRUE;
}
void CWnd::PreSubclassWindow() {}
BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}
void CWnd::PostNcDestroy() {}
void CWnd::DoDataExchange(CDataExchange*) {}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    // Handled messages are not looked at again: the object may have deleted itself.
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    return DefWindowProc(currentMessage.message, currentMessage.wParam, currentMessage.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, result);
    const AFX_MESSAGE dispatched{message, wParam, lParam, result};
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry) {
            const bool registered = entry->pRegistered != nullptr;
            if (registered ? *entry->pRegistered != message || message < 0xC000 : entry->nMessage != message)
                continue;
            entry->pfn(this, dispatched);
            return TRUE;
        }
    }
    return FALSE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    AFX_MESSAGE message{WM_COMMAND, wParam, lParam, &result};
    // A control that was disabled since it sent the command is not heard any more.
    if (lParam && !::IsWindowEnabled(reinterpret_cast<HWND>(lParam)) && HIWORD(wParam) == BN_CLICKED)
        return TRUE;
    return OnCmdMsg(LOWORD(wParam), HIWORD(wParam), &message, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    AFX_MESSAGE message{WM_NOTIFY, wParam, lParam, result};
    return header && OnCmdMsg(static_cast<UINT>(header->idFrom), static_cast<int>(header->code), &message, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return CCmdTarget::OnCmdMsg(id, code, extra, info);
}

int CWnd::OnCreate(LPCREATESTRUCT)
{
    return static_cast<int>(Default());
}
void CWnd::OnDestroy()
{
    Default();
}
void CWnd::OnClose()
{
    Default();
}
void CWnd::OnSize(UINT, int, int)
{
    Default();
}
void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}
void CWnd::OnEnable(BOOL)
{
    Default();
}
void CWnd::OnSetFocus(CWnd*)
{
    Default();
}
void CWnd::OnKillFocus(CWnd*)
{
    Default();
}
void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcDestroy()
{
    Default();
    Detach();
    PostNcDestroy();
}
