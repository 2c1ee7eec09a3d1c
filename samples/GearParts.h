#pragma once

#include "samples/GearboxLayout.h"

#include <TopoDS_Shape.hxx>

namespace sample
{

// Each part is modelled about its own z axis; the comment says where its z = 0 stands.

/// Internal gear with the wedge of the opening taken out; z = 0 at its lower face. The assembly turns it by less than
/// a tooth to make it mesh, so the wedge stays in the direction of the opening.
TopoDS_Shape makeRingGear();
/// z = 0 at the lower face of the teeth.
TopoDS_Shape makeSunGear(Stage const& stage);
/// z = 0 at the lower face of the teeth.
TopoDS_Shape makePlanetGear(Stage const& stage);
/// Headed pin on which a planet runs, pressed into the carrier; z = 0 where the planet's teeth begin.
TopoDS_Shape makePlanetPin(Stage const& stage);
/// Plate with three pin seats and three lightening holes; the first stage's has the stub shaft that drives the second
/// sun. z = 0 at the plate's lower face, planet 0 in the direction of the opening.
TopoDS_Shape makeCarrier(Stage const& stage);

/// Shafts stand in the gearbox's own z.
TopoDS_Shape makeInputShaft();
TopoDS_Shape makeOutputShaft();
TopoDS_Shape makeInputKey();
TopoDS_Shape makeOutputKey();

} // namespace sample
