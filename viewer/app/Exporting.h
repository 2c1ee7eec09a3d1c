#pragma once

#include "host/orv/IDocument.h"
#include "host/orv/IStatusManager.h"

#include <memory>
#include <string>
#include <vector>

namespace orvviewer
{

struct ExportResult {
    int status = 0;       ///< an orvexp::Status as an integer; 0 for success
    std::wstring message; ///< a whole sentence, for success too
};

/// Writes the document in the format of the path's extension, by the exporter library that takes it. `status` may be
/// null.
ExportResult exportDocument(std::shared_ptr<orv::IDocument> const& document, std::wstring const& path,
                            orv::IStatusManager* status);

/// The extensions, without the point, that the installed exporters write.
std::vector<std::wstring> writableExtensions();

} // namespace orvviewer
