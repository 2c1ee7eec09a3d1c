#pragma once

#include <TopoDS_Shape.hxx>

namespace sample
{

/// A spur gear of 20 degrees pressure angle. Lengths in millimetres. Tooth 0 stands on the x axis.
struct GearData {
    int teeth;
    double module;
    double width;    ///< along z, from z = 0
    double backlash; ///< taken off the tooth's thickness at the pitch circle
};

/// Radius of the pitch circle: half of teeth times module.
double pitchRadius(GearData const& gear);
/// Radius over the teeth: one module above the pitch circle.
double tipRadius(GearData const& gear);
/// Radius at the bottom of the spaces: 1.25 modules below the pitch circle.
double rootRadius(GearData const& gear);

/// An external gear with a plain bore. Flanks are involutes of the base circle, radial lines below it.
/// Throws std::invalid_argument if the gear has fewer than 17 teeth (they would be undercut) or the bore leaves no rim.
TopoDS_Shape externalGear(GearData const& gear, double boreRadius);

/// An internal gear in a ring of `outerRadius`. Space 0 stands on the x axis. The teeth are 0.8 modules high above the
/// pitch circle, so that they stay clear of the planets' flanks below the base circle.
TopoDS_Shape internalGear(GearData const& gear, double outerRadius);

/// Angle by which the planet gear at the direction `direction` (radians) is turned so that it meshes with a sun
/// gear whose tooth 0 points along x.
double planetTurn(int sunTeeth, int planetTeeth, double direction);

/// Angle by which the internal gear is turned so that it meshes with that planet.
double ringTurn(int planetTeeth, int ringTeeth, double direction, double planetTurned);

} // namespace sample
