#include "afxgdi.h"

#include "afxcmdtarget.h"
#include "afxwnd.h"
#include "platform/qt/Gdi.h"
#include "platform/text/Text.h"

#include <QFile>

#include <memory>
#include <unordered_map>

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPngImage, CBitmap)
IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)

namespace
{
// Objects that the toolkit makes for handles of others. They never delete the handle, so they are never deleted either.
template <class Object>
Object* objectFor(void* handle)
{
    static auto& made = *new std::unordered_map<void*, Object*>;
    if (!handle)
        return nullptr;
    Object*& object = made[handle];
    if (!object)
        object = new Object;
    object->m_hObject = handle;
    return object;
}
} // namespace

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    m_hObject = object;
    return object != nullptr;
}

HGDIOBJ CGdiObject::Detach()
{
    return std::exchange(m_hObject, nullptr);
}
BOOL CGdiObject::DeleteObject()
{
    return ::DeleteObject(Detach());
}

CFont* CFont::FromHandle(HFONT font)
{
    return objectFor<CFont>(font);
}

BOOL CFont::CreateFontIndirect(const LOGFONTW* description)
{
    DeleteObject();
    return Attach(CreateFontIndirectW(description));
}

BOOL CFont::CreatePointFont(int tenthsOfPoint, LPCWSTR face, CDC* context)
{
    LOGFONTW description{};
    const int dpi = context ? context->GetDeviceCaps(LOGPIXELSY) : ::GetDeviceCaps(nullptr, LOGPIXELSY);
    description.lfHeight = -MulDiv(tenthsOfPoint, dpi, 720);
    description.lfWeight = FW_NORMAL;
    const std::wstring name = std::wstring(face ? face : L"").substr(0, LF_FACESIZE - 1);
    std::copy(name.begin(), name.end(), description.lfFaceName);
    return CreateFontIndirect(&description);
}

int CFont::GetLogFont(LOGFONTW* description) const
{
    return GetObject(static_cast<int>(sizeof(LOGFONTW)), description);
}

CBitmap* CBitmap::FromHandle(HBITMAP bitmap)
{
    return objectFor<CBitmap>(bitmap);
}

int CBitmap::GetBitmap(BITMAP* description) const
{
    return GetObject(static_cast<int>(sizeof(BITMAP)), description);
}

BOOL CPngImage::Load(UINT id, HINSTANCE module)
{
    return Load(MAKEINTRESOURCEW(id), module);
}

BOOL CPngImage::Load(LPCWSTR name, HINSTANCE module)
{
    if (!module)
        module = AfxFindResourceHandle(name, L"PNG");
    HRSRC resource = FindResourceW(module, name, L"PNG");
    if (!resource)
        return FALSE;
    const QByteArray bytes(static_cast<const char*>(LockResource(LoadResource(module, resource))),
                           static_cast<qsizetype>(SizeofResource(module, resource)));
    QImage image = orvplatform::decodeOnce(bytes);
    if (image.isNull())
        return FALSE;
    DeleteObject();
    return Attach(orvplatform::makeBitmap(std::move(image)));
}

BOOL CPngImage::LoadFromFile(LPCWSTR path)
{
    QFile file(QString::fromWCharArray(path ? path : L""));
    QImage image = file.open(QIODevice::ReadOnly) ? orvplatform::decodePicture(file.readAll()) : QImage();
    if (image.isNull())
        return FALSE;
    DeleteObject();
    return Attach(orvplatform::makeBitmap(std::move(image)));
}

CDC* CDC::FromHandle(HDC context)
{
    static auto& made = *new std::unordered_map<HDC, CDC*>;
    if (!context)
        return nullptr;
    CDC*& object = made[context];
    if (!object)
        object = new CDC;
    object->m_hDC = context;
    return object;
}

BOOL CDC::Attach(HDC context)
{
    m_hDC = context;
    return context != nullptr;
}

HDC CDC::Detach()
{
    return std::exchange(m_hDC, nullptr);
}

CFont* CDC::SelectObject(CFont* font)
{
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, font ? font->m_hObject : nullptr)));
}

CSize CDC::GetTextExtent(LPCWSTR text, int count) const
{
    SIZE size{};
    GetTextExtentPoint32W(m_hDC, text, count, &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& text) const
{
    return GetTextExtent(text, text.GetLength());
}
BOOL CDC::GetTextMetrics(TEXTMETRICW* metrics) const
{
    return GetTextMetricsW(m_hDC, metrics);
}
int CDC::GetDeviceCaps(int index) const
{
    return ::GetDeviceCaps(m_hDC, index);
}

CClientDC::CClientDC(CWnd* window) : m_hWnd(window ? window->m_hWnd : nullptr)
{
    Attach(::GetDC(m_hWnd));
}
CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
