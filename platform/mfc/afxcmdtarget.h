#pragma once
// What can be the target of commands and messages.

#include "afx.h"
#include "afxmsg_.h"

// Where OnCmdMsg only looks for a handler, it leaves what it found here.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_INVOKER pmf;
};

class CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    // Routes a command or notification (`id`, `code`) through the message map. `extra` points to the AFX_MESSAGE on its
    // way; with `info` the handler is looked for and not called. True when there was one.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

    // The busy cursor. Calls nest; RestoreWaitCursor shows it again after something else changed the cursor.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

// Shows the busy cursor from its construction to its destruction.
class CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};

// The module whose resources the toolkit looks in; what it lacks is looked for in the other loaded modules.
void AfxSetResourceHandle(HINSTANCE module);
HINSTANCE AfxGetResourceHandle();
HINSTANCE AfxGetInstanceHandle(); // the program's
HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);
CWnd* AfxGetMainWnd(); // set through orvplatform::setMainWindow; null before
LPCWSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr, HICON icon = nullptr);
