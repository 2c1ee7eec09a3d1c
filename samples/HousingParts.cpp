#include "samples/HousingParts.h"

#include "samples/GearboxLayout.h"
#include "samples/Solids.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakePrism.hxx>

#include <cmath>

namespace sample
{

namespace
{

constexpr double bore = ringOuterRadius;
constexpr double outside = 80;

TopoDS_Shape finished(TopoDS_Shape const& body)
{
    std::vector<TopoDS_Shape> tools{wedge(openDirection, housingOpening, 200, -100, 300)};
    for (int position = 0; position < boltPositions; ++position)
        if (boltStands(position))
            tools.push_back(cylinder(boltHoleRadius, flangeZ - flangeWidth - 1, flangeZ + flangeWidth + 1,
                                     boltCircle * std::cos(boltDirection(position)),
                                     boltCircle * std::sin(boltDirection(position))));
    return cut(body, tools);
}

} // namespace

TopoDS_Shape makeInputHousing()
{
    double const seat = inputBearing.outside;
    double const flange = flangeZ - flangeWidth;
    return finished(turned({{seat, -16},
                            {33, -16},
                            {34, -15},
                            {34, 2},
                            {outside - 3, 2},
                            {outside, 5},
                            {outside, flange},
                            {flangeRadius, flange},
                            {flangeRadius, flangeZ},
                            {bore, flangeZ},
                            {bore, 16},
                            {20, 16},
                            {20, 14},
                            {seat, 14}}));
}

TopoDS_Shape makeOutputHousing()
{
    double const seat = outputBearing.outside;
    double const flange = flangeZ + flangeWidth;
    return finished(turned({{bore, flangeZ},
                            {flangeRadius, flangeZ},
                            {flangeRadius, flange},
                            {outside, flange},
                            {outside, 123},
                            {outside - 3, 126},
                            {48, 126},
                            {48, 181},
                            {47, 182},
                            {seat, 182},
                            {seat, 124},
                            {30, 124},
                            {30, 114},
                            {bore, 114}}));
}

TopoDS_Shape makeFlangeBolt()
{
    double const headHeight = 5.3;
    double const corner = 13 / std::sqrt(3.0);
    BRepBuilderAPI_MakePolygon hexagon;
    for (int i = 0; i < 6; ++i)
        hexagon.Add(gp_Pnt(corner * std::cos(i * 60 * degree), corner * std::sin(i * 60 * degree), -headHeight));
    hexagon.Close();
    BRepBuilderAPI_MakeFace face(hexagon.Wire(), true);
    TopoDS_Shape const prism = BRepPrimAPI_MakePrism(face.Shape(), gp_Vec(0, 0, headHeight)).Shape();
    TopoDS_Shape const chamfered = turned({{0, -headHeight}, {6.2, -headHeight}, {8, -headHeight + 1}, {8, 0}, {0, 0}});
    TopoDS_Shape const head = BRepAlgoAPI_Common(prism, chamfered).Shape();
    TopoDS_Shape const shank = turned({{0, -1}, {4, -1}, {4, 19}, {3, 20}, {0, 20}});
    return fuse({head, shank});
}

} // namespace sample
