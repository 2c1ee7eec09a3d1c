#pragma once

#include "exporters/orvwriter/TreeOrder.h"
#include "host/orv/IDocument.h"

#include <TDF_Label.hxx>

#include <memory>
#include <vector>

namespace orvwriter
{

/// Writes the state of the nodes to the label, as host/orvexp/NativeFormat.h lays it down.
void writeState(std::shared_ptr<orv::IDocument> const& model, std::vector<Entry> const& entries,
                TDF_Label const& label);

} // namespace orvwriter
