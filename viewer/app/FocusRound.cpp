#include "viewer/app/FocusRound.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace orvviewer
{

FocusPlace placeOf(QWidget& widget)
{
    return {[&widget] {
                auto const* focus = QApplication::focusWidget();
                return focus == &widget || widget.isAncestorOf(focus);
            },
            [&widget] {
                if (!widget.isVisible()) {
                    return false;
                }
                widget.activateWindow(); // the focus may be in a pane with a window of its own
                widget.setFocus(Qt::ShortcutFocusReason);
                return true;
            }};
}

void goRound(std::vector<FocusPlace> const& places, int step)
{
    auto const count = static_cast<int>(places.size());
    auto const present =
        std::find_if(places.begin(), places.end(), [](FocusPlace const& place) { return place.hasFocus(); });
    int at = present != places.end() ? static_cast<int>(present - places.begin()) : step > 0 ? count - 1 : 0;
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (places[static_cast<std::size_t>(at)].take()) {
            return;
        }
    }
}

} // namespace orvviewer
