#pragma once

#include <functional>

namespace orvviewer
{

/// Runs a call so that an invalid memory access in it ends the call and not the program: the kernel's readers follow
/// null references in damaged files. False where that happened; what the call had in hand is then lost and never
/// freed. Exceptions pass through. One guarded call at a time.
bool runGuarded(std::function<void()> const& call);

} // namespace orvviewer
