#pragma once
// Forms grow with their font, and the heights that a list gives them are set for a few display steps. So a button at a
// form's lower end would be cut there; it is made lower instead, and as high as it was when there is room again.

#include "platform/qt/Window.h"

#include <QPointer>
#include <QRect>

#include <vector>

namespace orvplatform
{
class ButtonRoom
{
public:
    // Makes the push buttons that stand in the window itself end at the height (pixels) where they reach below it, but
    // none lower than a line of its text. Those that the window has moved meanwhile start from their new place.
    void fit(HWND window, int height);

private:
    struct Shortened {
        QPointer<HWND__> button;
        QRect whole;     // its place in the window, pixels
        QRect shortened; // likewise, as it was given last
    };
    void fitButton(HWND button, int height);

    std::vector<Shortened> lowered;
};
} // namespace orvplatform
