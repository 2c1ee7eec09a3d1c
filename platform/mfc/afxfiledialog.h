#pragma once
#include "afxdlg.h"

#include <string>

inline constexpr DWORD OFN_READONLY = 0x00000001;
inline constexpr DWORD OFN_OVERWRITEPROMPT = 0x00000002;
inline constexpr DWORD OFN_HIDEREADONLY = 0x00000004;
inline constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;

// What the dialog was given. The texts belong to the dialog.
struct tagOFNW {
    HWND hwndOwner;
    LPCWSTR lpstrFilter; // pairs of description and pattern, each ended by a zero, a further zero at the end
    LPWSTR lpstrFile;    // proposed name, after DoModal the chosen path; MAX_PATH characters
    DWORD nMaxFile;
    LPCWSTR lpstrInitialDir;
    LPCWSTR lpstrTitle;
    DWORD Flags;
    LPCWSTR lpstrDefExt;
};
using OPENFILENAMEW = tagOFNW;
using OPENFILENAME = OPENFILENAMEW;

// The save dialog (first argument FALSE) or the open dialog. The filter has the form "Text|*.a;*.b|Text|*.c||"; an
// empty one offers all files. The default extension goes to a name that is typed without one.
class CFileDialog : public CDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    explicit CFileDialog(BOOL open, LPCWSTR defaultExtension = nullptr, LPCWSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCWSTR filter = nullptr,
                         CWnd* parent = nullptr, DWORD size = 0, BOOL vistaStyle = TRUE);

    INT_PTR DoModal() override;   // IDOK with a path, or IDCANCEL
    CString GetPathName() const;  // the chosen path; before DoModal the proposed name
    CString GetFileName() const;  // without its directory
    CString GetFileTitle() const; // without directory and extension
    CString GetFileExt() const;

    OPENFILENAME m_ofn{};
    BOOL m_bOpenFileDialog;

    // Makes a path the chosen one: what GetPathName returns from now on, whole, or
    // cut to the room in m_ofn where that is the caller's.
    void TakePath(const std::wstring& path);

private:
    std::wstring defaultExtension;
    std::wstring filter; // zeros in place of "|"
    std::wstring file;
};
