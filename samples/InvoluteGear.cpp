#include "samples/InvoluteGear.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <GeomAPI_Interpolate.hxx>
#include <Geom_BSplineCurve.hxx>
#include <TColgp_HArray1OfPnt.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Circ.hxx>
#include <gp_Pln.hxx>

#include <cmath>
#include <numbers>
#include <stdexcept>

namespace sample
{

namespace
{

constexpr double pi = std::numbers::pi;
constexpr double pressureAngle = 20.0 * pi / 180.0;
constexpr int flankPoints = 6;

double involute(double angle)
{
    return std::tan(angle) - angle;
}

double baseRadius(GearData const& gear)
{
    return pitchRadius(gear) * std::cos(pressureAngle);
}

// Half of the angle that a tooth spans at `radius`.
double halfAngle(GearData const& gear, double radius)
{
    double const base = baseRadius(gear);
    double const atPitch = pi / (2 * gear.teeth) - gear.backlash / (2 * pitchRadius(gear));
    return atPitch + involute(pressureAngle) - involute(std::acos(std::min(1.0, base / radius)));
}

gp_Pnt polar(double radius, double angle)
{
    return {radius * std::cos(angle), radius * std::sin(angle), 0};
}

// The outline of the teeth, counter-clockwise: of an external gear, or of the spaces of an internal one.
class Outline
{
public:
    Outline(GearData const& data, double innerRadius, double outerRadius)
        : gear(data), inner(innerRadius), outer(outerRadius)
    {
    }

    TopoDS_Wire wire()
    {
        first = vertex(inner, -halfAngle(gear, inner));
        here = first;
        for (int tooth = 0; tooth < gear.teeth; ++tooth)
            addTooth(2 * pi * tooth / gear.teeth, tooth + 1 == gear.teeth);
        return maker.Wire();
    }

private:
    void addTooth(double middle, bool last)
    {
        double const involuteStart = std::max(inner, baseRadius(gear));
        double const foot = halfAngle(gear, inner);
        double const tip = halfAngle(gear, outer);
        double const pitch = 2 * pi / gear.teeth;
        bool const radial = inner < involuteStart - 1e-9;

        if (radial)
            line(vertex(involuteStart, middle - foot));
        flank(involuteStart, outer, middle, -1);
        arc(outer, middle, vertex(outer, middle + tip));
        flank(outer, involuteStart, middle, +1);
        if (radial)
            line(vertex(inner, middle + foot));
        arc(inner, middle + pitch / 2, last ? first : vertex(inner, middle + pitch - foot));
    }

    static TopoDS_Vertex vertex(double radius, double angle)
    {
        return BRepBuilderAPI_MakeVertex(polar(radius, angle)).Vertex();
    }

    void add(TopoDS_Edge const& edge, TopoDS_Vertex const& next)
    {
        maker.Add(edge);
        here = next;
    }

    void line(TopoDS_Vertex const& next) { add(BRepBuilderAPI_MakeEdge(here, next).Edge(), next); }

    void arc(double radius, double through, TopoDS_Vertex const& next)
    {
        GC_MakeArcOfCircle const curve(BRep_Tool::Pnt(here), polar(radius, through), BRep_Tool::Pnt(next));
        add(BRepBuilderAPI_MakeEdge(curve.Value(), here, next).Edge(), next);
    }

    void flank(double from, double to, double middle, int side)
    {
        Handle(TColgp_HArray1OfPnt) points = new TColgp_HArray1OfPnt(1, flankPoints);
        for (int i = 0; i < flankPoints; ++i) {
            double const radius = from + (to - from) * i / (flankPoints - 1);
            points->SetValue(i + 1, polar(radius, middle + side * halfAngle(gear, radius)));
        }
        GeomAPI_Interpolate curve(points, false, 1e-7);
        curve.Perform();
        TopoDS_Vertex const next = BRepBuilderAPI_MakeVertex(points->Value(flankPoints)).Vertex();
        add(BRepBuilderAPI_MakeEdge(curve.Curve(), here, next).Edge(), next);
    }

    GearData gear;
    double inner;
    double outer;
    TopoDS_Vertex first;
    TopoDS_Vertex here;
    BRepBuilderAPI_MakeWire maker;
};

TopoDS_Wire circle(double radius)
{
    gp_Circ const curve(gp_Ax2(gp::Origin(), gp::DZ()), radius);
    return BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(curve).Edge()).Wire();
}

TopoDS_Shape extruded(TopoDS_Wire const& boundary, TopoDS_Wire const& hole, double width)
{
    BRepBuilderAPI_MakeFace face(gp_Pln(gp::Origin(), gp::DZ()), boundary);
    face.Add(TopoDS::Wire(hole.Reversed()));
    return BRepPrimAPI_MakePrism(face.Shape(), gp_Vec(0, 0, width)).Shape();
}

} // namespace

double pitchRadius(GearData const& gear)
{
    return gear.teeth * gear.module / 2;
}
double tipRadius(GearData const& gear)
{
    return pitchRadius(gear) + gear.module;
}
double rootRadius(GearData const& gear)
{
    return pitchRadius(gear) - 1.25 * gear.module;
}

TopoDS_Shape externalGear(GearData const& gear, double boreRadius)
{
    if (gear.teeth < 17)
        throw std::invalid_argument("a gear of fewer than 17 teeth would be undercut");
    if (boreRadius <= 0 || boreRadius >= rootRadius(gear))
        throw std::invalid_argument("the bore leaves no rim below the teeth");
    return extruded(Outline(gear, rootRadius(gear), tipRadius(gear)).wire(), circle(boreRadius), gear.width);
}

TopoDS_Shape internalGear(GearData const& gear, double outerRadius)
{
    double const pitch = pitchRadius(gear);
    double const root = pitch + 1.25 * gear.module;
    double const tip = pitch - 0.8 * gear.module;
    if (outerRadius <= root)
        throw std::invalid_argument("the ring leaves no rim outside the teeth");
    // A space is a tooth that is wider by the backlash instead of narrower.
    GearData space = gear;
    space.backlash = -gear.backlash;
    return extruded(circle(outerRadius), Outline(space, tip, root).wire(), gear.width);
}

// In the direction of the planet, count teeth from the sun's tooth 0; where the sun has a tooth the planet has a space,
// and the two counts run in opposite senses: together they make a half.
double planetTurn(int sunTeeth, int planetTeeth, double direction)
{
    double const sunCount = direction * sunTeeth / (2 * pi);
    return direction + pi - (0.5 - sunCount) * 2 * pi / planetTeeth;
}

// On the far side a tooth of the planet fills a space of the ring, and the counts run in the same sense.
double ringTurn(int planetTeeth, int ringTeeth, double direction, double planetTurned)
{
    double const planetCount = (direction - planetTurned) * planetTeeth / (2 * pi);
    return direction - planetCount * 2 * pi / ringTeeth;
}

} // namespace sample
