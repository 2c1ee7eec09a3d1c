#pragma once
// Controls whose widgets are made late. A list holds thousands of dialogs of which a few are in sight, so a dialog that
// is made for one, of labels and push buttons, gets them as handles alone: they have a place, a text, a font and a
// state, and can be asked for all of it. The widgets follow for the whole dialog, when it comes into sight or anything
// needs one of them.

#include "platform/qt/Window.h"

#include <QRect>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvplatform
{
// What only the drawing side of a control keeps; the last one that is set counts.
enum class Drawn { Picture, Flat, ToolTip };

struct UnmadeControl {
    HWND dialog;
    QWidget* (*make)(HWND control, QWidget* parent); // of a class of controls
    QRect place;                                     // in the dialog
    bool isHidden = false;
    bool isDisabled = false;
    std::vector<std::pair<Drawn, std::function<void(QWidget&)>>> drawn;
};

// Whether controls of the class and style can do without a widget for a while.
bool canBeUnmade(const wchar_t* className, DWORD style);
// A control of such a class. The style of `create` is its own from then on.
HWND makeUnmadeControl(const CREATESTRUCTW& create, HWND dialog);
// The widgets of the dialog's controls that have none, in their order. Nothing where all have theirs.
void makeControls(HWND dialog);

// Does it to the control's widget, now or when it is made.
void whenMade(HWND control, Drawn what, std::function<void(QWidget&)> change);

// Of a window, whether or not its widget is made.
QRect placeInParent(HWND window); // in the parent's pixels
bool isHidden(HWND window);       // by its own state, whatever its parent's
bool isDisabled(HWND window);     // likewise
} // namespace orvplatform
