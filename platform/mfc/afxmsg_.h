#pragma once
// Message maps: a class's table from messages, commands and notifications to its member functions.
//
// Every entry carries a small function that unpacks the message's parameters for the member function's own signature.

#include "atltypes.h"
#include "winuser.h"

class CCmdTarget;
class CWnd;
class CDC;

#define afx_msg

// One message on its way to a handler. `result` is what the sender gets back.
struct AFX_MESSAGE {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT* result;
};
using AFX_INVOKER = void (*)(CCmdTarget*, const AFX_MESSAGE&);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;              // of WM_COMMAND and WM_NOTIFY
    UINT nID;                // first control or command id
    UINT nLastID;            // last one
    const UINT* pRegistered; // a registered message's number, else null
    AFX_INVOKER pfn;         // null ends the table
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); // null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

namespace orvmsg
{
template <class Function>
struct MemberOf;
template <class Result, class Class, class... Arguments>
struct MemberOf<Result (Class::*)(Arguments...)> {
    using Type = Class;
};
template <auto function>
auto* target(CCmdTarget* object)
{
    return static_cast<typename MemberOf<decltype(function)>::Type*>(object);
}

CWnd* windowFromHandle(HWND window);
inline CPoint pointOf(LPARAM value)
{
    return {static_cast<SHORT>(LOWORD(static_cast<ULONG_PTR>(value))),
            static_cast<SHORT>(HIWORD(static_cast<ULONG_PTR>(value)))};
}

template <auto function>
void onCommand(CCmdTarget* object, const AFX_MESSAGE&)
{
    (target<function>(object)->*function)();
}
template <auto function>
void onCommandRange(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(LOWORD(m.wParam));
}
template <auto function>
void onNotify(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(reinterpret_cast<NMHDR*>(m.lParam), m.result);
}
template <auto function>
void onMessage(CCmdTarget* object, const AFX_MESSAGE& m)
{
    *m.result = (target<function>(object)->*function)(m.wParam, m.lParam);
}
template <auto function>
void onCreate(CCmdTarget* object, const AFX_MESSAGE& m)
{
    *m.result = (target<function>(object)->*function)(reinterpret_cast<LPCREATESTRUCT>(m.lParam));
}
template <auto function>
void onPlain(CCmdTarget* object, const AFX_MESSAGE&)
{
    (target<function>(object)->*function)();
}
template <auto function>
void onSize(CCmdTarget* object, const AFX_MESSAGE& m)
{
    const CPoint size = pointOf(m.lParam);
    (target<function>(object)->*function)(static_cast<UINT>(m.wParam), static_cast<int>(size.x),
                                          static_cast<int>(size.y));
}
template <auto function>
void onMouse(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(static_cast<UINT>(m.wParam), pointOf(m.lParam));
}
template <auto function>
void onKey(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(static_cast<UINT>(m.wParam), 1u, 0u);
}
template <auto function>
void onFocus(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(windowFromHandle(reinterpret_cast<HWND>(m.wParam)));
}
template <auto function>
void onShow(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(static_cast<BOOL>(m.wParam), static_cast<UINT>(m.lParam));
}
template <auto function>
void onEnable(CCmdTarget* object, const AFX_MESSAGE& m)
{
    (target<function>(object)->*function)(static_cast<BOOL>(m.wParam));
}
} // namespace orvmsg

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                                    \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, nullptr, nullptr                                                                                   \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                         \
    return &map;                                                                                                       \
    }

#define ORV_ENTRY(message, code, first, last, registered, invoker)                                                     \
    {message, static_cast<UINT>(code), static_cast<UINT>(first), static_cast<UINT>(last), registered, invoker},

#define ON_COMMAND(id, memberFxn) ORV_ENTRY(WM_COMMAND, 0, id, id, nullptr, (&orvmsg::onCommand<memberFxn>))
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    ORV_ENTRY(WM_COMMAND, 0, id, idLast, nullptr, (&orvmsg::onCommandRange<memberFxn>))
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    ORV_ENTRY(WM_COMMAND, wNotifyCode, id, id, nullptr, (&orvmsg::onCommand<memberFxn>))
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    ORV_ENTRY(WM_NOTIFY, wNotifyCode, id, id, nullptr, (&orvmsg::onNotify<memberFxn>))
#define ON_MESSAGE(message, memberFxn) ORV_ENTRY(message, 0, 0, 0, nullptr, (&orvmsg::onMessage<memberFxn>))
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    ORV_ENTRY(0xC000, 0, 0, 0, &nMessageVariable, (&orvmsg::onMessage<memberFxn>))

#define ORV_WM(message, invoker, name) ORV_ENTRY(message, 0, 0, 0, nullptr, (&orvmsg::invoker<&ThisClass::name>))
#define ON_WM_CREATE() ORV_WM(WM_CREATE, onCreate, OnCreate)
#define ON_WM_DESTROY() ORV_WM(WM_DESTROY, onPlain, OnDestroy)
#define ON_WM_NCDESTROY() ORV_WM(WM_NCDESTROY, onPlain, OnNcDestroy)
#define ON_WM_CLOSE() ORV_WM(WM_CLOSE, onPlain, OnClose)
#define ON_WM_SIZE() ORV_WM(WM_SIZE, onSize, OnSize)
#define ON_WM_SHOWWINDOW() ORV_WM(WM_SHOWWINDOW, onShow, OnShowWindow)
#define ON_WM_ENABLE() ORV_WM(WM_ENABLE, onEnable, OnEnable)
#define ON_WM_SETFOCUS() ORV_WM(WM_SETFOCUS, onFocus, OnSetFocus)
#define ON_WM_KILLFOCUS() ORV_WM(WM_KILLFOCUS, onFocus, OnKillFocus)
#define ON_WM_KEYDOWN() ORV_WM(WM_KEYDOWN, onKey, OnKeyDown)
#define ON_WM_MOUSEMOVE() ORV_WM(WM_MOUSEMOVE, onMouse, OnMouseMove)
#define ON_WM_LBUTTONDOWN() ORV_WM(WM_LBUTTONDOWN, onMouse, OnLButtonDown)
#define ON_WM_LBUTTONUP() ORV_WM(WM_LBUTTONUP, onMouse, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() ORV_WM(WM_LBUTTONDBLCLK, onMouse, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() ORV_WM(WM_RBUTTONDOWN, onMouse, OnRButtonDown)
#define ON_WM_RBUTTONUP() ORV_WM(WM_RBUTTONUP, onMouse, OnRButtonUp)
