#pragma once

#include "host/orv/IDocument.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bomwriter
{

struct BomRow {
    std::string item;       ///< position: "3", or "3.1.2" by level
    int level = 0;          ///< depth below the model, 0 for its own children
    std::string name;       ///< UTF-8
    int quantity = 0;       ///< how often it occurs under its parent; in the whole model where the list is by part
    std::int64_t total = 0; ///< how often it occurs in the whole model
};

/// A bill of materials as it is reported.
struct BomTable {
    std::string title;  ///< name of the model
    bool byPart = true; ///< all parts in one list; else the tree, level by level
    std::vector<BomRow> rows;
};

/// The bill of materials of the document, by part or by level as its record's report level says; by part without such a
/// record. The record itself stays as it is.
BomTable bomTable(std::shared_ptr<orv::IDocument> const& document);

/// The table as comma-separated values (RFC 4180) in UTF-8 with its mark: a line of titles, then a line a row. A name
/// that a spreadsheet would take for a formula has an apostrophe in front.
std::string csvOf(BomTable const& table);

} // namespace bomwriter
