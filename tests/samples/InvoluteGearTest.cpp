#include "samples/BearingParts.h"
#include "samples/GearParts.h"
#include "samples/GearboxLayout.h"
#include "samples/HousingParts.h"

#include <gtest/gtest.h>

#include <BRepAlgoAPI_Common.hxx>
#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <gp_Ax1.hxx>

#include <cmath>
#include <numbers>
#include <stdexcept>

namespace
{

using namespace sample;

double volume(TopoDS_Shape const& shape)
{
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shape, properties);
    return properties.Mass();
}

double shared(TopoDS_Shape const& a, TopoDS_Shape const& b)
{
    TopoDS_Shape const common = BRepAlgoAPI_Common(a, b).Shape();
    return common.IsNull() ? 0 : volume(common);
}

TopoDS_Shape placed(TopoDS_Shape const& shape, double angle, double x, double y, double z = 0)
{
    gp_Trsf turn;
    turn.SetRotation(gp::OZ(), angle);
    gp_Trsf move;
    move.SetTranslation(gp_Vec(x, y, z));
    return BRepBuilderAPI_Transform(shape, move * turn).Shape();
}

// Thin slices are enough: the gears are straight.
GearData slice(GearData gear)
{
    gear.width = 1;
    return gear;
}

TEST(InvoluteGear, ReachesFromTheRootToTheTip)
{
    GearData const gear{20, 2, 5, 0};
    TopoDS_Shape const shape = externalGear(gear, 6);
    EXPECT_TRUE(BRepCheck_Analyzer(shape).IsValid());
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, false);
    double x0, y0, z0, x1, y1, z1;
    box.Get(x0, y0, z0, x1, y1, z1);
    EXPECT_NEAR(x1, 22, 1e-3);
    EXPECT_NEAR(x0, -22, 1e-3);
    EXPECT_NEAR(z1 - z0, 5, 1e-3);
    // The teeth and spaces average out near the pitch circle.
    double const ideal = std::numbers::pi * (20 * 20 - 6 * 6) * 5;
    EXPECT_NEAR(volume(shape), ideal, 0.06 * ideal);
}

TEST(InvoluteGear, RefusesWhatCannotBeCut)
{
    EXPECT_THROW(externalGear({16, 2, 5, 0}, 6), std::invalid_argument);
    EXPECT_THROW(externalGear({20, 2, 5, 0}, 18), std::invalid_argument);
    EXPECT_THROW(externalGear({20, 2, 5, 0}, 0), std::invalid_argument);
    EXPECT_THROW(internalGear({60, 2, 5, 0}, 62), std::invalid_argument);
}

class Mesh : public testing::TestWithParam<int>
{
};

TEST_P(Mesh, SunPlanetsAndRingFitWithAHairsBreadth)
{
    Stage const& stage = stages.at(static_cast<std::size_t>(GetParam()));
    TopoDS_Shape const sun = externalGear(slice(stage.sun), stage.sunBore);
    TopoDS_Shape const planet = externalGear(slice(stage.planet), stage.pinRadius);
    TopoDS_Shape const whole = internalGear(slice(ringGear), ringOuterRadius);
    double const first = planetTurn(stage.sun.teeth, stage.planet.teeth, planetDirection(0));
    TopoDS_Shape const internal =
        placed(whole, ringTurn(stage.planet.teeth, ringGear.teeth, planetDirection(0), first), 0, 0);
    for (int i = 0; i < planetsPerStage; ++i) {
        double const direction = planetDirection(i);
        double const turn = planetTurn(stage.sun.teeth, stage.planet.teeth, direction);
        TopoDS_Shape const here =
            placed(planet, turn, planetCircle(stage) * std::cos(direction), planetCircle(stage) * std::sin(direction));
        EXPECT_LT(shared(sun, here), 1e-3) << "planet " << i;
        EXPECT_LT(shared(internal, here), 1e-3) << "planet " << i;
        // The play between the flanks is 0.12: whoever turns a planet by more meets the next flank.
        double const tooFar = 0.2 / pitchRadius(stage.planet);
        if (i == 0)
            for (double const sense : {-1.0, 1.0}) {
                gp_Trsf onwards;
                onwards.SetRotation(gp_Ax1(gp_Pnt(planetCircle(stage) * std::cos(direction),
                                                  planetCircle(stage) * std::sin(direction), 0),
                                           gp::DZ()),
                                    sense * tooFar);
                TopoDS_Shape const twisted = BRepBuilderAPI_Transform(here, onwards).Shape();
                EXPECT_GT(shared(sun, twisted), 0.01);
                EXPECT_GT(shared(internal, twisted), 0.01);
            }
    }
    EXPECT_LT(planetCircle(stage), tipRadius(stage.sun) + tipRadius(stage.planet))
        << "the teeth must reach into each other";
}

INSTANTIATE_TEST_SUITE_P(BothStages, Mesh, testing::Values(0, 1));

TEST(GearboxParts, StandClearOfTheirNeighbours)
{
    TopoDS_Shape const input = makeInputShaft();
    TopoDS_Shape const output = makeOutputShaft();
    TopoDS_Shape const carrier1 = placed(makeCarrier(stages[0]), 0, 0, 0, stages[0].plateZ);
    TopoDS_Shape const carrier2 = placed(makeCarrier(stages[1]), 0, 0, 0, stages[1].plateZ);
    TopoDS_Shape const inputHousing = makeInputHousing();
    TopoDS_Shape const outputHousing = makeOutputHousing();
    TopoDS_Shape const race = placed(makeOuterRace(outputBearing), 0, 0, 0, outputBearingZ[0]);
    TopoDS_Shape const inner = placed(makeInnerRace(outputBearing), 0, 0, 0, outputBearingZ[0]);
    TopoDS_Shape const sun2 = placed(makeSunGear(stages[1]), 0, 0, 0, stages[1].gearZ);
    TopoDS_Shape const ring2 = placed(makeRingGear(), 0, 0, 0, stages[1].ringZ);

    struct Pair {
        char const* what;
        TopoDS_Shape a, b;
    };
    for (auto const& pair : std::vector<Pair>{
             {"input shaft, first carrier", input, carrier1},
             {"first and second carrier", carrier1, carrier2},
             {"output shaft, first carrier", output, carrier1},
             {"output shaft, second carrier", output, carrier2},
             {"second sun, first carrier", sun2, carrier1},
             {"halves of the housing", inputHousing, outputHousing},
             {"second carrier, housing", carrier2, outputHousing},
             {"outer race, housing", race, outputHousing},
             {"inner race, output shaft", inner, output},
             {"ring gear, housing", ring2, outputHousing},
             {"ring gear, second carrier", ring2, carrier2},
             {"input key, input shaft", makeInputKey(), input},
             {"output key, output shaft", makeOutputKey(), output},
             {"output seal, shaft", placed(makeSeal(17.5, outputBearing.outside, 10), 0, 0, 0, outputSealZ), output}})
        EXPECT_LT(shared(pair.a, pair.b), 0.01) << pair.what;
}

} // namespace
