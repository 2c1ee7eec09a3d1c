#pragma once

#include "host/orv/Document.h"
#include "viewer/import/ImportProgress.h"

#include <memory>
#include <string>

namespace orvviewer
{

struct ImportResult {
    std::shared_ptr<orv::Document> document; ///< empty where nothing could be opened
    std::wstring error;                      ///< a whole sentence where there is no document
    bool stopped = false;                    ///< the user has asked to stop
};

/// Reads a model file into a document with all scene records but the application's own (key 19). Knows no window and
/// may run in a thread of its own, one import at a time. Never throws.
ImportResult importModel(std::wstring const& path, ImportProgress& progress);

} // namespace orvviewer
