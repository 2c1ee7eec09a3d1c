#include "platform/qt/UnmadeControl.h"

#include "platform/qt/ButtonControl.h"
#include "platform/qt/Controls.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/StaticControl.h"

#include <QtWidgets>

#include <algorithm>
#include <array>

namespace orvplatform
{
namespace
{
struct LateClass {
    const wchar_t* name;
    const wchar_t* handleName; // of its handles
    bool (*isLate)(DWORD style);
    QWidget* (*make)(HWND control, QWidget* parent);
    std::unique_ptr<Behaviour> (*behave)();
};
constexpr std::array lateClasses = {
    LateClass{L"Static", L"Static", [](DWORD) { return true; }, makeLabel, staticBehaviour},
    LateClass{L"Button", L"Button", isPushButtonStyle, makePushButton, buttonBehaviour},
    LateClass{L"MfcButton", L"Button", isPushButtonStyle, makePushButton, buttonBehaviour},
};

const LateClass* lateClass(const wchar_t* className, DWORD style)
{
    for (const LateClass& each : lateClasses)
        if (wcscasecmp(className, each.name) == 0 && each.isLate(style))
            return &each;
    return nullptr;
}

// The Tab key goes from control to control as if all had been made with the dialog, whenever that was. The toolkit
// moves nothing over widgets that the key doesn't reach, so those at both ends are within its reach for the while.
void putBehind(QWidget& previous, QWidget& next)
{
    QWidget& before = *next.previousInFocusChain();
    if (&before == &previous)
        return;
    const std::pair policies(previous.focusPolicy(), before.focusPolicy());
    previous.setFocusPolicy(Qt::TabFocus);
    before.setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(&previous, &next);
    before.setFocusPolicy(policies.second);
    previous.setFocusPolicy(policies.first);
}

void makeWidget(HWND control)
{
    const std::unique_ptr<UnmadeControl> state = std::move(control->unmade);
    QWidget* const host = state->dialog->childHost;
    QWidget* const widget = state->make(control, host);
    limitFocus(*widget, control->style);
    widget->setGeometry(state->place);
    widget->setEnabled(!state->isDisabled);
    if (state->isHidden)
        widget->hide();
    control->takeWidget(widget);
    control->behaviour->setText(control, control->text);
    control->behaviour->widgetMade(control);
    renewFont(control);
    for (const auto& [what, change] : state->drawn)
        change(*widget);
    // The control has been on show all the while, so nobody is told.
    control->turning = true;
    if (!state->isHidden)
        widget->show();
    control->turning = false;
}
} // namespace

bool canBeUnmade(const wchar_t* className, DWORD style)
{
    return lateClass(className, style) != nullptr;
}

HWND makeUnmadeControl(const CREATESTRUCTW& create, HWND dialog)
{
    const auto style = static_cast<DWORD>(create.style);
    const LateClass* const late = lateClass(create.lpszClass, style);
    auto state = std::make_unique<UnmadeControl>();
    state->dialog = dialog;
    state->make = late->make;
    state->place = {create.x, create.y, create.cx, create.cy};
    state->isHidden = !(style & WS_VISIBLE);
    state->isDisabled = style & WS_DISABLED;
    auto* const control = new HWND__(dialog->childHost, std::move(state), late->handleName);
    control->behaviour = late->behave();
    control->style = style;
    control->exStyle = create.dwExStyle;
    control->id = static_cast<int>(reinterpret_cast<LONG_PTR>(create.hMenu));
    control->text = toQString(create.lpszName);
    control->reportedSize = {create.cx, create.cy};
    dialog->unmadeControls.push_back(control);
    return control;
}

void makeControls(HWND dialog)
{
    QWidget* previous = dialog->madeWidget();
    for (HWND control : std::exchange(dialog->unmadeControls, {})) {
        if (!isLive(control) || !control->unmade)
            continue;
        makeWidget(control);
        if (control->madeWidget()->focusPolicy() & Qt::TabFocus) {
            putBehind(*previous, *control->madeWidget());
            previous = control->madeWidget();
        }
    }
}

void whenMade(HWND control, Drawn what, std::function<void(QWidget&)> change)
{
    if (!control->unmade) {
        change(*control->widget());
        return;
    }
    std::erase_if(control->unmade->drawn, [what](const auto& each) { return each.first == what; });
    control->unmade->drawn.emplace_back(what, std::move(change));
}

QRect placeInParent(HWND window)
{
    return window->unmade ? window->unmade->place : window->widget()->geometry();
}

bool isHidden(HWND window)
{
    return window->unmade ? window->unmade->isHidden : !window->asleep && window->widget()->isHidden();
}

bool isDisabled(HWND window)
{
    return window->unmade ? window->unmade->isDisabled : window->widget()->testAttribute(Qt::WA_ForceDisabled);
}
} // namespace orvplatform
