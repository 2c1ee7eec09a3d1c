#pragma once

#include "exporters/prc/Scene.h"

namespace prc
{

class SectionReader;
class SectionWriter;

/// Writes a placement: a Cartesian transformation where it is a translation, a rotation and a uniform scale, else the
/// whole matrix.
void writePlacement(SectionWriter& out, Matrix const& matrix);

/// Reads either kind, its type included. Throws FormatError.
Matrix readPlacement(SectionReader& in);

} // namespace prc
