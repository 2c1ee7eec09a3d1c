#pragma once
// The dialog 10 of platformtest.rc, with everything bound.

#include "afxcmn.h"
#include "afxcontrolbars.h"
#include "afxdialogex.h"
#include "platform/Process.h"
#include "platform/testing/Input.h"
#include "platform/testing/ModalExpectation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class Form : public CDialog
{
    DECLARE_DYNAMIC(Form)
    DECLARE_MESSAGE_MAP()

public:
    explicit Form(CWnd* parent = nullptr) : CDialog(10, parent) {}

    CEdit edit;
    CMFCMaskedEdit password;
    CMFCButton apply;
    CString name = L"preset";
    int number = 0;
    int missing = 0; // a control to bind that is not there
    std::vector<std::string> log;
    bool endAtOnce = false;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        log.emplace_back("init");
        if (endAtOnce)
            EndDialog(77);
        return TRUE;
    }
    void OnOK() override
    {
        log.emplace_back("ok");
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        log.emplace_back("cancel");
        CDialog::OnCancel();
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, 51, edit);
        DDX_Control(exchange, 52, password);
        DDX_Control(exchange, 1000, apply);
        if (missing)
            DDX_Control(exchange, missing, other);
        DDX_Text(exchange, 51, name);
        DDX_Text(exchange, 54, number);
    }
    void OnApply() { log.emplace_back("apply"); }
    void OnOther() { log.emplace_back("other"); }
    void OnChanged() { log.emplace_back("changed"); }
    void OnLink(NMHDR* header, LRESULT* result)
    {
        log.push_back("link " + orvtextOf(reinterpret_cast<NMLINK*>(header)->item.szUrl));
        *result = 0;
    }
    static std::string orvtextOf(const std::wstring& text) { return {text.begin(), text.end()}; }

private:
    CButton other;
};

inline void registerTestResources()
{
    orvplatform::testing::ensureApplication();
    static const bool registered = orvplatform::registerModuleFile(L"test.dll", TEST_RESOURCES);
    EXPECT_TRUE(registered);
    AfxSetResourceHandle(GetModuleHandleW(L"test.dll"));
}
