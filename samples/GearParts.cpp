#include "samples/GearParts.h"

#include "samples/Solids.h"

#include <cmath>

namespace sample
{

namespace
{

constexpr double inputKeyWidth = 6;
constexpr double inputKeyLength = 32;
constexpr double outputKeyWidth = 10;
constexpr double outputKeyLength = 40;

} // namespace

TopoDS_Shape makeRingGear()
{
    TopoDS_Shape const whole = internalGear(ringGear, ringOuterRadius);
    return cut(whole, {wedge(openDirection, ringOpening, 100, -1, ringGear.width + 1)});
}

TopoDS_Shape makeSunGear(Stage const& stage)
{
    return externalGear(stage.sun, stage.sunBore);
}

TopoDS_Shape makePlanetGear(Stage const& stage)
{
    double const clearance = 0.05;
    double const recess = 2;
    double const width = stage.planet.width;
    TopoDS_Shape const gear = externalGear(stage.planet, stage.pinRadius + clearance);
    double const hub = stage.pinRadius + 3;
    double const rim = rootRadius(stage.planet) - 2.5;
    return cut(gear, {ring(hub, rim, -1, recess), ring(hub, rim, width - recess, width + 1)});
}

TopoDS_Shape makePlanetPin(Stage const& stage)
{
    double const r = stage.pinRadius;
    double const head = r + 2;
    double const end = stage.plateZ - stage.gearZ + stage.plateWidth;
    return turned(
        {{0, -2.5}, {head - 0.5, -2.5}, {head, -2}, {head, -0.5}, {r, -0.5}, {r, end - 0.8}, {r - 0.8, end}, {0, end}});
}

TopoDS_Shape makeCarrier(Stage const& stage)
{
    TopoDS_Shape body;
    double const width = stage.plateWidth;
    if (stage.carrierBore > 0) {
        double const hub = stage.carrierBore + 8;
        body = turned({{stage.carrierBore, 0},
                       {stage.plateRadius - 1, 0},
                       {stage.plateRadius, 1},
                       {stage.plateRadius, width - 1},
                       {stage.plateRadius - 1, width},
                       {hub, width},
                       {hub, width + 3},
                       {stage.carrierBore, width + 3}});
    } else {
        Stage const& next = stages[1];
        double const stub = next.sunBore;
        double const shoulder = next.gearZ - stage.plateZ;
        double const end = shoulder + next.sun.width;
        body = turned({{0, 0},
                       {stage.plateRadius - 1, 0},
                       {stage.plateRadius, 1},
                       {stage.plateRadius, width - 1},
                       {stage.plateRadius - 1, width},
                       {stub + 4, width},
                       {stub + 4, shoulder},
                       {stub, shoulder},
                       {stub, end - 0.8},
                       {stub - 0.8, end},
                       {0, end}});
    }
    std::vector<TopoDS_Shape> holes;
    double const circle = planetCircle(stage);
    for (int planet = 0; planet < planetsPerStage; ++planet) {
        double const seat = planetDirection(planet);
        holes.push_back(cylinder(stage.pinRadius, -1, width + 1, circle * std::cos(seat), circle * std::sin(seat)));
        double const between = seat + 60 * degree;
        holes.push_back(cylinder(10, -1, width + 1, circle * std::cos(between), circle * std::sin(between)));
    }
    return cut(body, holes);
}

TopoDS_Shape makeInputShaft()
{
    double const gearEnd = stages[0].gearZ + stages[0].sun.width;
    TopoDS_Shape const shaft = turned({{0, -50},
                                       {8, -50},
                                       {9, -49},
                                       {9, -16},
                                       {10, -16},
                                       {10, 14},
                                       {13, 14},
                                       {13, stages[0].gearZ},
                                       {10, stages[0].gearZ},
                                       {10, gearEnd - 0.8},
                                       {9.2, gearEnd},
                                       {0, gearEnd}});
    return cut(shaft, {keyBody(inputKeyWidth, 5.5, 12, inputKeyZ, inputKeyZ + inputKeyLength)});
}

TopoDS_Shape makeInputKey()
{
    return keyBody(inputKeyWidth, 5.5, 11.5, inputKeyZ, inputKeyZ + inputKeyLength);
}

TopoDS_Shape makeOutputShaft()
{
    double const start = stages[1].plateZ;
    double const seat = stages[1].carrierBore;
    double const collar0 = outputBearingZ[0] + outputBearing.width;
    double const collar1 = outputBearingZ[1];
    TopoDS_Shape const shaft = turned({{0, start},
                                       {seat, start},
                                       {seat, collar0},
                                       {21, collar0},
                                       {21, collar1},
                                       {seat, collar1},
                                       {seat, 184},
                                       {16, 184},
                                       {16, 234},
                                       {15, 235},
                                       {0, 235}});
    return cut(shaft, {keyBody(outputKeyWidth, 11, 20, outputKeyZ, outputKeyZ + outputKeyLength)});
}

TopoDS_Shape makeOutputKey()
{
    return keyBody(outputKeyWidth, 11, 19, outputKeyZ, outputKeyZ + outputKeyLength);
}

} // namespace sample
