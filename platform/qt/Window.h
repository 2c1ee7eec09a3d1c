#pragma once
// What a window handle points to: a widget and what the system keeps about a window.

#include "platform/qt/WindowCreation.h"
#include "winuser.h"

#include <QObject>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// What a class of windows does with its own messages and texts. Lives as long as its window.
class Behaviour
{
public:
    virtual ~Behaviour() = default;
    virtual void setText(HWND window, const QString& text);
    virtual QString text(HWND window); // as the user left it
    // True when the message is the class's own; the result is then set.
    virtual bool message(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    // The window's widget was made later than the window: it takes over what the class keeps for it.
    virtual void widgetMade(HWND) {}
};
struct UnmadeControl;
} // namespace orvplatform

// Child object and event filter of its widget; so it ends with it at the latest.
struct HWND__ final : public QObject {
    HWND__(QWidget* shown, std::wstring name);
    // A control whose widget is made when something asks for it; `owner` is the widget of its dialog.
    HWND__(QWidget* owner, std::unique_ptr<orvplatform::UnmadeControl> control, std::wstring name);
    ~HWND__() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWidget* widget(); // never null; makes the widget of an unmade control, and its neighbours'
    QWidget* madeWidget() const { return shownWidget; } // null while it is unmade
    void takeWidget(QWidget* made);                     // an unmade control's

    QWidget* childHost; // parent of child windows' widgets: the widget itself or a part of it
    std::wstring className;
    QString text;
    int id = 0;
    DWORD style = 0;
    DWORD exStyle = 0;
    WNDPROC procedure = nullptr; // null: DefWindowProcW
    HFONT font = nullptr;
    HICON icons[2] = {nullptr, nullptr};
    std::unique_ptr<orvplatform::Behaviour> behaviour;
    QSize reportedSize;
    SIZE baseUnits = {0, 0}; // a dialog's
    bool isDialog = false;
    bool foreign = false; // a widget of the program: its events are its own
    bool ending = false;  // WM_DESTROY is on its way or gone
    bool placed = false;  // in a group of a tasks pane, which lets it sleep out of sight
    bool asleep = false;  // on show as far as anybody can tell, its widget hidden; see Sleep.h
    bool turning = false; // between the two: nobody is told that the widget shows or hides
    std::unique_ptr<orvplatform::UnmadeControl> unmade; // see UnmadeControl.h
    std::vector<HWND__*> unmadeControls;                // a dialog's, in its template's order
    std::vector<std::function<void()>> whenGone;

private:
    bool translate(QEvent* event);
    QWidget* shownWidget;
};

namespace orvplatform
{
bool isLive(HWND window);
HWND existingHandle(const QWidget* widget); // null when the widget has none
HWND nearestHandle(QWidget* widget);        // of the widget or its nearest ancestor with one
HWND nearestDialog(HWND window);            // the window itself or its nearest ancestor that is a dialog

// Gives the widget a handle. The behaviour may be null.
HWND attachHandle(QWidget* widget, const std::wstring& className, std::unique_ptr<Behaviour> behaviour);

// Sends a message behind the exception barrier. `defaulted` tells whether the default handling was reached.
LRESULT deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool* defaulted = nullptr);
void reportSize(HWND window);              // WM_SIZE if the window was not yet told of its size
void sendCommand(HWND control, UINT code); // WM_COMMAND to the control's parent, behind the barrier

QString toQString(const wchar_t* text);
} // namespace orvplatform
