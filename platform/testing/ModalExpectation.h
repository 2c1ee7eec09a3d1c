#pragma once
// Scripted modal dialogs. While a ModalScript lives, DoModal of dialogs, file dialogs and property sheets runs the next
// expectation in place of waiting for a user; one that is not expected fails and is cancelled.
//
//     orvplatform::testing::ModalScript script([](const std::string& why) { ADD_FAILURE() << why; });
//     script.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) {
//         typeText(dialog, 1017, L"ann@example.com");
//         clickButton(dialog, 1001);
//         return IDCANCEL; // counts when the dialog has not been ended by then
//     });
//     script.expectModal<CFileDialog>([](CFileDialog& dialog) { choosePath(dialog, L"a.stl"); return IDOK; });

#include "afxdlgs.h"

#include <deque>
#include <functional>
#include <string>
#include <typeinfo>

namespace orvplatform::testing
{
class ModalScript
{
public:
    using Failure = std::function<void(const std::string&)>;
    explicit ModalScript(Failure failure);
    ~ModalScript(); // fails for every expectation that is left
    ModalScript(const ModalScript&) = delete;
    ModalScript& operator=(const ModalScript&) = delete;

    // The next modal window is expected to be a `Dialog`. The function runs when its window stands and OnInitDialog is
    // done; its result is DoModal's unless the dialog was ended inside.
    template <class Dialog, class Function>
    void expectModal(Function function)
    {
        expectations.push_back({typeid(Dialog).name(), [function](CWnd& window, INT_PTR& result) {
                                    auto* dialog = dynamic_cast<Dialog*>(&window);
                                    if (!dialog)
                                        return false;
                                    result = function(*dialog);
                                    return true;
                                }});
    }
    bool allSeen() const { return expectations.empty(); }
    void fail(const std::string& why);

    // For DoModal: false when no script is running; otherwise plays the next expectation.
    static bool isRunning();
    static INT_PTR play(CWnd& window);

private:
    struct Expectation {
        std::string what;
        std::function<bool(CWnd&, INT_PTR&)> run;
    };
    std::deque<Expectation> expectations;
    Failure failure;
    ModalScript* outer;
};

void choosePath(CFileDialog& dialog, const std::wstring& path); // what the dialog's GetPathName then returns
} // namespace orvplatform::testing
