#include "samples/GearboxAssembly.h"

#include "samples/BearingParts.h"
#include "samples/GearParts.h"
#include "samples/HousingParts.h"
#include "samples/Solids.h"

#include <Quantity_Color.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Application.hxx>
#include <TopLoc_Location.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Trsf.hxx>

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace sample
{

namespace
{

struct Rgb {
    double red, green, blue;
};

constexpr Rgb castIron{0.36, 0.47, 0.56};
constexpr Rgb darkSteel{0.33, 0.35, 0.38};
constexpr Rgb brightSteel{0.76, 0.78, 0.80};
constexpr Rgb shaftSteel{0.62, 0.64, 0.67};
constexpr Rgb bronze{0.80, 0.60, 0.24};
constexpr Rgb planetSteel{0.30, 0.55, 0.45};
constexpr Rgb carrierBlue{0.25, 0.38, 0.66};
constexpr Rgb black{0.12, 0.12, 0.13};
constexpr Rgb keyOrange{0.90, 0.48, 0.13};
constexpr Rgb sectionRed{0.78, 0.20, 0.17};

gp_Trsf moved(double x, double y, double z)
{
    gp_Trsf placement;
    placement.SetTranslation(gp_Vec(x, y, z));
    return placement;
}

gp_Trsf turnedBy(double angle)
{
    gp_Trsf placement;
    placement.SetRotation(gp::OZ(), angle);
    return placement;
}

// The document under construction. Labels of parts and assemblies can be placed any number of times.
class Builder
{
public:
    Builder()
    {
        Handle(TDocStd_Application) const application = new TDocStd_Application();
        application->NewDocument("BinXCAF", document);
        shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
        colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
    }

    TDF_Label assembly(std::string const& name)
    {
        TDF_Label const label = shapes->NewShape();
        rename(label, name);
        return label;
    }

    TDF_Label part(std::string const& name, TopoDS_Shape const& shape, Rgb const& color,
                   std::vector<gp_Pln> const& sections = {})
    {
        TDF_Label const label = shapes->AddShape(shape, false);
        rename(label, name);
        colors->SetColor(label, quantity(color), XCAFDoc_ColorSurf);
        for (auto const& face : facesIn(shape, sections))
            colors->SetColor(shapes->AddSubShape(label, face), quantity(sectionRed), XCAFDoc_ColorSurf);
        return label;
    }

    void place(TDF_Label const& parent, TDF_Label const& child, std::string const& name, gp_Trsf const& placement = {})
    {
        rename(shapes->AddComponent(parent, child, TopLoc_Location(placement)), name);
    }

    Handle(TDocStd_Document) finished()
    {
        shapes->UpdateAssemblies();
        return document;
    }

private:
    static Quantity_Color quantity(Rgb const& color) { return {color.red, color.green, color.blue, Quantity_TOC_sRGB}; }

    static void rename(TDF_Label const& label, std::string const& name)
    {
        TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str(), true));
    }

    Handle(TDocStd_Document) document;
    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
};

std::string numbered(std::string const& name, int number)
{
    return name + " " + std::to_string(number);
}

TDF_Label bearing(Builder& builder, std::string const& name, BearingData const& data)
{
    TDF_Label const label = builder.assembly(name);
    builder.place(label, builder.part(name + " outer ring", makeOuterRace(data), brightSteel), "Outer ring");
    builder.place(label, builder.part(name + " inner ring", makeInnerRace(data), brightSteel), "Inner ring");
    builder.place(label, builder.part(name + " ball cage", makeBallCage(data), bronze), "Ball cage");
    return label;
}

// The tooth patterns repeat: the smallest turn that gives the same gear keeps an opened ring where it is.
double smallestTurn(double angle, int teeth)
{
    return std::remainder(angle, 360 * degree / teeth);
}

TDF_Label stage(Builder& builder, int number, TDF_Label const& ringGearPart)
{
    Stage const& data = stages.at(static_cast<std::size_t>(number - 1));
    TDF_Label const planet = builder.assembly(numbered("Planet assembly", number));
    builder.place(planet, builder.part(numbered("Planet gear", number), makePlanetGear(data), planetSteel),
                  "Planet gear");
    TDF_Label const pin = builder.part(numbered("Planet pin", number), makePlanetPin(data), brightSteel);

    TDF_Label const carrier = builder.assembly(numbered("Carrier assembly", number));
    double const lift = data.gearZ - data.plateZ;
    builder.place(carrier, builder.part(numbered("Carrier", number), makeCarrier(data), carrierBlue), "Carrier");
    builder.place(planet, pin, "Planet pin");
    for (int i = 0; i < planetsPerStage; ++i) {
        double const direction = planetDirection(i);
        double const circle = planetCircle(data);
        double const turn = planetTurn(data.sun.teeth, data.planet.teeth, direction);
        builder.place(carrier, planet, numbered("Planet", i + 1),
                      moved(circle * std::cos(direction), circle * std::sin(direction), lift) * turnedBy(turn));
    }

    double const firstTurn = planetTurn(data.sun.teeth, data.planet.teeth, openDirection);
    double const ring =
        smallestTurn(ringTurn(data.planet.teeth, ringGear.teeth, openDirection, firstTurn), ringGear.teeth);
    TDF_Label const label = builder.assembly(numbered("Stage", number));
    builder.place(label, builder.part(numbered("Sun gear", number), makeSunGear(data), bronze), "Sun gear",
                  moved(0, 0, data.gearZ));
    builder.place(label, ringGearPart, "Ring gear", moved(0, 0, data.ringZ) * turnedBy(ring));
    builder.place(label, carrier, "Carrier assembly", moved(0, 0, data.plateZ));
    return label;
}

TDF_Label housing(Builder& builder)
{
    auto const sections = wedgePlanes(openDirection, housingOpening);
    TDF_Label const label = builder.assembly("Housing");
    builder.place(label, builder.part("Input housing", makeInputHousing(), castIron, sections), "Input housing");
    builder.place(label, builder.part("Output housing", makeOutputHousing(), castIron, sections), "Output housing");
    TDF_Label const bolt = builder.part("Hexagon bolt M8x20", makeFlangeBolt(), black);
    int count = 0;
    for (int position = 0; position < boltPositions; ++position) {
        if (!boltStands(position))
            continue;
        double const direction = boltDirection(position);
        builder.place(label, bolt, numbered("Flange bolt", ++count),
                      moved(boltCircle * std::cos(direction), boltCircle * std::sin(direction), flangeZ - flangeWidth));
    }
    return label;
}

TDF_Label inputShaft(Builder& builder)
{
    TDF_Label const label = builder.assembly("Input shaft assembly");
    builder.place(label, builder.part("Input shaft", makeInputShaft(), shaftSteel), "Input shaft");
    builder.place(label, builder.part("Parallel key 6x6x32", makeInputKey(), keyOrange), "Input key");
    builder.place(label, bearing(builder, "Ball bearing 20x47x14", inputBearing), "Input bearing",
                  moved(0, 0, inputBearingZ));
    builder.place(label, builder.part("Shaft seal 20x47x10", makeSeal(10, inputBearing.outside, 10), black),
                  "Input seal", moved(0, 0, inputSealZ));
    return label;
}

TDF_Label outputShaft(Builder& builder)
{
    TDF_Label const label = builder.assembly("Output shaft assembly");
    builder.place(label, builder.part("Output shaft", makeOutputShaft(), shaftSteel), "Output shaft");
    builder.place(label, builder.part("Parallel key 10x8x40", makeOutputKey(), keyOrange), "Output key");
    TDF_Label const ballBearing = bearing(builder, "Ball bearing 35x72x17", outputBearing);
    int count = 0;
    for (double const z : outputBearingZ)
        builder.place(label, ballBearing, numbered("Output bearing", ++count), moved(0, 0, z));
    builder.place(label, builder.part("Shaft seal 35x72x10", makeSeal(17.5, outputBearing.outside, 10), black),
                  "Output seal", moved(0, 0, outputSealZ));
    return label;
}

} // namespace

Handle(TDocStd_Document) makeGearbox()
{
    Builder builder;
    TDF_Label const root = builder.assembly("Planetary gearbox");

    // The model's z, x, y become x, y, z: the shafts lie level, and the opening looks at who stands in front.
    gp_Trsf toShaft;
    toShaft.SetDisplacement(gp_Ax3(gp::Origin(), gp::DZ(), gp::DX()), gp_Ax3(gp::Origin(), gp::DX(), gp::DY()));

    TDF_Label const ringGearPart =
        builder.part("Ring gear", makeRingGear(), darkSteel, wedgePlanes(openDirection, ringOpening));
    builder.place(root, housing(builder), "Housing", toShaft);
    builder.place(root, inputShaft(builder), "Input shaft assembly", toShaft);
    for (int number = 1; number <= 2; ++number)
        builder.place(root, stage(builder, number, ringGearPart), numbered("Stage", number), toShaft);
    builder.place(root, outputShaft(builder), "Output shaft assembly", toShaft);
    return builder.finished();
}

} // namespace sample
