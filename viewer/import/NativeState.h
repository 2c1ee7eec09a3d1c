#pragma once

#include "host/orvgl/Camera.h"
#include "viewer/import/AssemblyWalker.h"

#include <TDocStd_Document.hxx>

#include <optional>
#include <string>

namespace orvviewer
{

/// Opens a file of the viewer's own format (host/orvexp/NativeFormat.h). False where its seal is broken or its content
/// isn't a document; nothing of a file with a broken seal is interpreted.
bool readNative(std::string const& utf8Path, Handle(TDocStd_Document) & document,
                Message_ProgressRange const& progress);

/// Lays the state that the file keeps over the records of its tree: names, placements, colours, transparency and what
/// is hidden. Whatever the file's lists of coloured and transparent nodes hold, they come to say what the nodes' flags
/// say. A state that doesn't fit the tree changes nothing. Returns the camera where the file has one.
std::optional<orvgl::Camera> applyNativeState(Handle(TDocStd_Document) const& document, SceneRecords& records);

} // namespace orvviewer
