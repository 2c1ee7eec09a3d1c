#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace orvviewer
{

/// A part of the window that the keyboard goes to as a whole.
struct FocusPlace {
    std::function<bool()> hasFocus;
    std::function<bool()> take; ///< false where it can't be gone to now
};

/// A widget as a place: taken while it is shown.
FocusPlace placeOf(QWidget& widget);

/// Gives the focus to the next place that takes it, or to the one before where `step` is -1. From outside of all places
/// the way starts at the first, or at the last.
void goRound(std::vector<FocusPlace> const& places, int step);

} // namespace orvviewer
