#include "platform/testing/ModalExpectation.h"

#include "platform/qt/DialogWindow.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace orvplatform::testing
{
namespace
{
ModalScript* running = nullptr;

std::string readableName(const char* mangled)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                           &std::free);
    return status == 0 ? name.get() : mangled;
}
} // namespace

ModalScript::ModalScript(Failure onFailure) : failure(std::move(onFailure)), outer(running)
{
    running = this;
}

ModalScript::~ModalScript()
{
    running = outer;
    for (const Expectation& each : expectations)
        fail("A modal " + readableName(each.what.c_str()) + " was expected and did not open.");
}

void ModalScript::fail(const std::string& why)
{
    if (failure)
        failure(why);
}

bool ModalScript::isRunning()
{
    return running != nullptr;
}

INT_PTR ModalScript::play(CWnd& window)
{
    const std::string what = readableName(typeid(window).name());
    if (running->expectations.empty()) {
        running->fail("A modal " + what + " opened and none was expected.");
        return IDCANCEL;
    }
    const Expectation next = std::move(running->expectations.front());
    running->expectations.pop_front();
    presentModal(window.m_hWnd);
    INT_PTR result = IDCANCEL;
    ModalScript* const script = running;
    if (!next.run(window, result)) {
        script->fail("A modal " + what + " opened where " + readableName(next.what.c_str()) + " was expected.");
        return IDCANCEL;
    }
    return result;
}

void choosePath(CFileDialog& dialog, const std::wstring& path)
{
    dialog.TakePath(path);
}
} // namespace orvplatform::testing
