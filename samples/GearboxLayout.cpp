#include "samples/GearboxLayout.h"

#include <cmath>

namespace sample
{

std::array<Stage, 2> const stages{{
    {{18, 2.0, 22, 0.06}, {21, 2.0, 22, 0.06}, 10, 7, 25, 24, 50, 56, 10, 0},
    {{24, 2.0, 22, 0.06}, {18, 2.0, 22, 0.06}, 12, 7, 73, 72, 98, 59, 10, 17.5},
}};

double planetCircle(Stage const& stage)
{
    return pitchRadius(stage.sun) + pitchRadius(stage.planet);
}

double planetDirection(int planet)
{
    return openDirection + planet * 2 * std::numbers::pi / planetsPerStage;
}

double boltDirection(int position)
{
    return (position + 0.5) * 2 * std::numbers::pi / boltPositions;
}

bool boltStands(int position)
{
    return std::abs(std::remainder(boltDirection(position) - openDirection, 2 * std::numbers::pi)) > housingOpening / 2;
}

} // namespace sample
