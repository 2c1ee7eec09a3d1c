#pragma once

#include "samples/GearboxLayout.h"

#include <TopoDS_Shape.hxx>

namespace sample
{

// Deep groove ball bearings and shaft seals; z = 0 at the lower face.

TopoDS_Shape makeOuterRace(BearingData const& bearing);
TopoDS_Shape makeInnerRace(BearingData const& bearing);
/// The balls with the cage that keeps them apart, as one body.
TopoDS_Shape makeBallCage(BearingData const& bearing);
/// Shaft seal with its lip, to run on `shaft` and sit in `seat` (radii).
TopoDS_Shape makeSeal(double shaft, double seat, double width);

} // namespace sample
