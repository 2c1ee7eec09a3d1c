#pragma once
#include "afxpropertypage.h"

#include <memory>
#include <string>
#include <vector>

// A window of pages with the buttons OK, Cancel and Apply. Pages stay their owner's. They can be added before and after
// the sheet has its window.
class CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)
    DECLARE_MESSAGE_MAP()

public:
    CPropertySheet() = default;
    explicit CPropertySheet(LPCWSTR caption, CWnd* parent = nullptr, UINT selectedPage = 0);
    ~CPropertySheet() override;

    void AddPage(CPropertyPage* page);
    void AddOwnPage(std::shared_ptr<CPropertyPage> page); // one that lives as long as the sheet
    void RemovePage(CPropertyPage* page);
    int GetPageCount() const;
    CPropertyPage* GetPage(int index) const; // null outside the pages
    int GetPageIndex(const CPropertyPage* page) const;
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    BOOL SetActivePage(int index); // false when a page refused
    BOOL SetActivePage(CPropertyPage* page);
    void SetTitle(LPCWSTR text);

    using CWnd::Create;
    virtual BOOL Create(CWnd* parent = nullptr, DWORD style = 0xFFFFFFFF, DWORD exStyle = 0); // modeless
    virtual INT_PTR DoModal();                                                                // IDOK or IDCANCEL
    void EndDialog(int result);
    BOOL PressButton(int button); // PSBTN_OK, PSBTN_CANCEL, PSBTN_APPLYNOW
    virtual BOOL OnInitDialog();  // the window stands; a sheet that adds pages late does it here

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnClose();

private:
    friend class CPropertyPage;
    BOOL createWindow(CWnd* owner);
    void destroyPages();
    BOOL showPage(int index);
    bool apply();
    void cancel();

    std::wstring caption;
    CWnd* parentWindow = nullptr;
    std::vector<std::shared_ptr<CPropertyPage>> ownPages;
    std::vector<CPropertyPage*> pages;
    int active = 0;
    bool modal = false;
    bool ended = false;
    int endResult = IDCANCEL;
};

inline constexpr int PSBTN_OK = 3;
inline constexpr int PSBTN_APPLYNOW = 4;
inline constexpr int PSBTN_CANCEL = 5;
inline constexpr int ID_APPLY_NOW = 0x3021;
