#pragma once

#include "exporters/bomwriter/BomTable.h"

#include <functional>
#include <string>

namespace bomwriter
{

/// The table as a PDF file of A4 pages: title, date and sums on the first, the table's head and page numbers on each.
/// Long names are wrapped; one that is longer than twelve lines ends in an ellipsis. `progress` is called with 0 to 1.
std::string pdfOf(BomTable const& table, std::string const& date, std::function<void(double)> const& progress);

} // namespace bomwriter
