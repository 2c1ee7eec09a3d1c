// Run-time classes, command targets, the resource module.
#include "afxcmdtarget.h"

#include "platform/qt/DialogWindow.h"
#include "platform/windows/Module.h"

#include <algorithm>

CRuntimeClass* CObject::GetThisClass()
{
    static CRuntimeClass description{"CObject", static_cast<int>(sizeof(CObject)), nullptr, nullptr};
    return &description;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}
BOOL CObject::IsKindOf(const CRuntimeClass* base) const
{
    return GetRuntimeClass()->IsDerivedFrom(base);
}

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* each = this; each; each = each->m_pBaseClass)
        if (each == base)
            return TRUE;
    return FALSE;
}

CObject* AfxDynamicDownCast(CRuntimeClass* target, CObject* object)
{
    return object && object->IsKindOf(target) ? object : nullptr;
}

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    LRESULT ignored = 0;
    const AFX_MESSAGE plain{WM_COMMAND, MAKEWPARAM(static_cast<int>(id), code), 0, &ignored};
    const AFX_MESSAGE& message = extra ? *static_cast<const AFX_MESSAGE*>(extra) : plain;
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry) {
            if (entry->nMessage != message.message || entry->nCode != static_cast<UINT>(code) || id < entry->nID ||
                id > entry->nLastID)
                continue;
            if (info)
                *info = {this, entry->pfn};
            else
                entry->pfn(this, message);
            return TRUE;
        }
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor()
{
    orvplatform::changeWaitCursor(1);
}
void CCmdTarget::EndWaitCursor()
{
    orvplatform::changeWaitCursor(-1);
}
void CCmdTarget::RestoreWaitCursor()
{
    orvplatform::changeWaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    orvplatform::changeWaitCursor(1);
}
CWaitCursor::~CWaitCursor()
{
    orvplatform::changeWaitCursor(-1);
}
void CWaitCursor::Restore()
{
    orvplatform::changeWaitCursor(0);
}

namespace
{
HINSTANCE resourceModule = nullptr;
}

void AfxSetResourceHandle(HINSTANCE module)
{
    resourceModule = module;
}
HINSTANCE AfxGetResourceHandle()
{
    // A library that has been unloaded since takes its resources with it.
    const auto& modules = orvplatform::loadedModules();
    const bool isLoaded = std::find(modules.begin(), modules.end(), resourceModule) != modules.end();
    return isLoaded ? resourceModule : AfxGetInstanceHandle();
}
HINSTANCE AfxGetInstanceHandle()
{
    return GetModuleHandleW(nullptr);
}

HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type)
{
    if (FindResourceW(AfxGetResourceHandle(), name, type))
        return AfxGetResourceHandle();
    for (HMODULE module : orvplatform::loadedModules())
        if (FindResourceW(module, name, type))
            return module;
    return AfxGetResourceHandle();
}

LPCWSTR AfxRegisterWndClass(UINT, HCURSOR, HBRUSH, HICON)
{
    return L"OrvWindow";
}
