#pragma once

#include "samples/InvoluteGear.h"

#include <array>
#include <numbers>

namespace sample
{

// Where everything of the gearbox stands. Millimetres and radians; z is the shafts' common axis, input at the low end.

inline constexpr double degree = std::numbers::pi / 180;
inline constexpr int planetsPerStage = 3;

/// The housing is cut open in this direction, and the first planet of each stage stands in the opening.
inline constexpr double openDirection = 135 * degree;
inline constexpr double housingOpening = 90 * degree;
inline constexpr double ringOpening = 72 * degree;

/// Both stages use the same internal gear: the sums of the tooth counts of sun and ring divide by three.
inline constexpr GearData ringGear{60, 2.0, 24.0, 0.06};
inline constexpr double ringOuterRadius = 72;

struct Stage {
    GearData sun;
    GearData planet;
    double sunBore;
    double pinRadius;
    double gearZ;  ///< where the gears begin
    double ringZ;  ///< where the internal gear begins
    double plateZ; ///< where the carrier's plate begins
    double plateRadius;
    double plateWidth;
    double carrierBore; ///< seat of the output shaft; 0 where the carrier has a stub shaft for the next sun
};

/// First and second stage, from the input on: 1 to 4.33 and 1 to 3.5.
extern std::array<Stage, 2> const stages;

/// Distance of the planets' axes from the shafts' axis.
double planetCircle(Stage const& stage);
/// Direction of planet 0, 1 or 2.
double planetDirection(int planet);

inline constexpr double flangeZ = 62; ///< the joint of the two halves of the housing
inline constexpr double flangeWidth = 10;
inline constexpr double flangeRadius = 97;
inline constexpr double boltCircle = 88;
inline constexpr double boltHoleRadius = 4.2;
inline constexpr int boltPositions = 8; ///< two of them fall into the opening

/// Direction of a bolt position, 0 to boltPositions - 1.
double boltDirection(int position);
/// Whether the position is on the part of the flange that the opening leaves.
bool boltStands(int position);

struct BearingData {
    double bore;    ///< radius
    double outside; ///< radius
    double width;
    double ballRadius;
    int balls;
};

inline constexpr BearingData inputBearing{10, 23.5, 14, 3.95, 9};
inline constexpr BearingData outputBearing{17.5, 36, 17, 5.55, 9};
inline constexpr double inputBearingZ = 0;
inline constexpr std::array<double, 2> outputBearingZ{124, 151};

inline constexpr double inputSealZ = -14;
inline constexpr double outputSealZ = 171;
inline constexpr double inputKeyZ = -46;
inline constexpr double outputKeyZ = 188;

} // namespace sample
