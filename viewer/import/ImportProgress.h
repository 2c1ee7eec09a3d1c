#pragma once

#include <atomic>

namespace orvviewer
{

/// How far an import has come. The importing thread writes it and the interface's thread reads it, or asks to stop.
struct ImportProgress {
    std::atomic<int> percent{0};
    std::atomic<bool> stopRequested{false};
};

} // namespace orvviewer
