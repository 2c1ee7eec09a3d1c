#pragma once
// Looks at a window as a user does: is every text seen whole, does everything stand inside and apart?

#include <string>
#include <vector>

class QWidget;

namespace restest
{

// One sentence for each text of a shown control that is cut off, each control that reaches out of its parent, and each
// two that lie on each other; empty where all is well. Looks at the window's direct and indirect children.
std::vector<std::string> misfits(const QWidget& window);

// How many shown texts the window has, so that a test sees that it has looked at something.
int textCount(const QWidget& window);

} // namespace restest
