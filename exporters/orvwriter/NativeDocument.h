#pragma once

#include "host/orv/IDocument.h"

#include <TDocStd_Document.hxx>

#include <functional>
#include <memory>

namespace orvwriter
{

/// Fills the kernel's document with the model: the tree, one label an assembly or mesh, and the state of the nodes as
/// host/orvexp/NativeFormat.h lays it down. `progress` is called with 0 to 1. False where the model has no node.
bool fillDocument(std::shared_ptr<orv::IDocument> const& model, Handle(TDocStd_Document) const& document,
                  std::function<void(double)> const& progress);

} // namespace orvwriter
