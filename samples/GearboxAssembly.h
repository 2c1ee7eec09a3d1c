#pragma once

#include <Standard_Handle.hxx>
#include <TDocStd_Document.hxx>

namespace sample
{

/// Models the gearbox: a document of named, coloured parts and nested assemblies. Parts and assemblies that occur
/// several times (planets, pins, bolts, bearings) are stored once and placed as instances. Lengths are millimetres; the
/// shafts lie along x, input at the negative end. The faces where the sample is cut open are red.
Handle(TDocStd_Document) makeGearbox();

} // namespace sample
