#pragma once

#include <Standard_Handle.hxx>
#include <TDocStd_Document.hxx>

#include <string>

namespace sample
{

/// Writes the document with names and colours as STEP AP214. The header's time stamp is fixed, so the same
/// document gives the same bytes. Throws std::runtime_error with a sentence if the file can't be written.
void writeStep(Handle(TDocStd_Document) const& document, std::string const& path);

} // namespace sample
