#pragma once
// Fonts, pictures and device contexts as objects that own their handle.

#include "afx.h"

class CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    BOOL Attach(HGDIOBJ object);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int size, LPVOID result) const { return GetObjectW(m_hObject, size, result); }
};

class CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    static CFont* FromHandle(HFONT font); // valid as long as the handle; the toolkit's own
    BOOL CreateFontIndirect(const LOGFONTW* description);
    BOOL CreatePointFont(int tenthsOfPoint, LPCWSTR face, CDC* context = nullptr);
    int GetLogFont(LOGFONTW* description) const;
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
};

class CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    static CBitmap* FromHandle(HBITMAP bitmap);
    int GetBitmap(BITMAP* description) const;
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
};

// A picture from a resource of the type "PNG".
class CPngImage : public CBitmap
{
    DECLARE_DYNAMIC(CPngImage)

public:
    BOOL Load(UINT id, HINSTANCE module = nullptr); // module: null for the toolkit's resource module
    BOOL Load(LPCWSTR name, HINSTANCE module = nullptr);
    BOOL LoadFromFile(LPCWSTR path);
};

class CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)

public:
    HDC m_hDC = nullptr;

    CDC() = default;
    static CDC* FromHandle(HDC context);
    HDC GetSafeHdc() const { return m_hDC; }
    BOOL Attach(HDC context);
    HDC Detach();
    CFont* SelectObject(CFont* font); // the earlier font
    CSize GetTextExtent(LPCWSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const;
    BOOL GetTextMetrics(TEXTMETRICW* metrics) const;
    int GetDeviceCaps(int index) const;
    operator HDC() const { return m_hDC; }
};

// A window's device context for the life of the object. Its font is the system's until one is selected.
class CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};
