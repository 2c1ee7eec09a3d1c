#pragma once

#include "viewer/app/RecentFiles.h"

#include <QMenu>

#include <functional>
#include <string>

namespace orvviewer
{

/// The menus that hang on ribbon buttons. Each belongs to its parent widget.

/// Ten colours to lay over parts, the file's own, and any other. `choose` is given a packed colour, `clear` nothing.
QMenu* makeColourMenu(QWidget* parent, std::function<void(unsigned long)> choose, std::function<void()> clear);

/// Steps of transparency, 0 to 1.
QMenu* makeTransparencyMenu(QWidget* parent, std::function<void(float)> choose);

/// The models opened last with their previews, read when the menu opens.
QMenu* makeRecentMenu(QWidget* parent, RecentFiles const& files, std::function<void(std::wstring const&)> open);

} // namespace orvviewer
