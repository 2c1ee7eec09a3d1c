#pragma once

#include "viewer/import/ModelImporter.h"

#include <string>

namespace orvviewer
{

class MainWindow;

/// Reads a model while the window stays painted: the import runs in a thread of its own, the status line shows how far
/// it is, and Escape stops it. Returns when it is done.
ImportResult loadModel(std::wstring const& path, MainWindow& window);

} // namespace orvviewer
