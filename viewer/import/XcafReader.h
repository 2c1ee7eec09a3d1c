#pragma once

#include "viewer/import/FileKind.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <string>

namespace orvviewer
{

/// Reads a file that has passed checkFile into a structured document: assembly tree, names, colours; lengths in
/// millimetres. False where the reader finds no model in it. Open CASCADE's exceptions pass through.
bool readStructured(FileKind kind, std::string const& utf8Path, Handle(TDocStd_Document) & document,
                    Message_ProgressRange const& progress);

} // namespace orvviewer
