#include "samples/Solids.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <GeomAbs_SurfaceType.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Ax1.hxx>
#include <gp_Ax2.hxx>
#include <gp_Vec.hxx>

#include <cmath>
#include <stdexcept>

namespace sample
{

namespace
{

TopTools_ListOfShape listed(std::vector<TopoDS_Shape> const& shapes)
{
    TopTools_ListOfShape list;
    for (auto const& shape : shapes)
        list.Append(shape);
    return list;
}

// A boolean operation hands back a compound around its one solid: a part is that solid.
TopoDS_Shape unwrapped(TopoDS_Shape const& shape)
{
    if (shape.ShapeType() != TopAbs_COMPOUND)
        return shape;
    TopoDS_Iterator item(shape);
    if (!item.More())
        throw std::runtime_error("a part of the sample came out empty");
    TopoDS_Shape const first = item.Value();
    item.Next();
    return item.More() ? shape : unwrapped(first);
}

} // namespace

TopoDS_Shape turned(std::vector<ProfilePoint> const& profile)
{
    BRepBuilderAPI_MakePolygon polygon;
    for (auto const& point : profile)
        polygon.Add(gp_Pnt(point.radius, 0, point.z));
    polygon.Close();
    BRepBuilderAPI_MakeFace face(polygon.Wire(), true);
    return BRepPrimAPI_MakeRevol(face.Shape(), gp_Ax1(gp::Origin(), gp::DZ())).Shape();
}

TopoDS_Shape cylinder(double radius, double z0, double z1, double x, double y)
{
    return BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(x, y, z0), gp::DZ()), radius, z1 - z0).Solid();
}

TopoDS_Shape ring(double inner, double outer, double z0, double z1)
{
    return turned({{inner, z0}, {outer, z0}, {outer, z1}, {inner, z1}});
}

TopoDS_Shape keyBody(double width, double y0, double y1, double z0, double z1)
{
    double const r = width / 2;
    gp_Pnt const lowLeft(-r, y0, z0 + r);
    gp_Pnt const lowRight(r, y0, z0 + r);
    gp_Pnt const highLeft(-r, y0, z1 - r);
    gp_Pnt const highRight(r, y0, z1 - r);
    auto const end = [](gp_Pnt const& from, gp_Pnt const& over, gp_Pnt const& to) {
        return BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(from, over, to).Value()).Edge();
    };
    BRepBuilderAPI_MakeWire outline(
        BRepBuilderAPI_MakeEdge(lowLeft, highLeft).Edge(), end(highLeft, gp_Pnt(0, y0, z1), highRight),
        BRepBuilderAPI_MakeEdge(highRight, lowRight).Edge(), end(lowRight, gp_Pnt(0, y0, z0), lowLeft));
    BRepBuilderAPI_MakeFace face(outline.Wire(), true);
    return BRepPrimAPI_MakePrism(face.Shape(), gp_Vec(0, y1 - y0, 0)).Shape();
}

TopoDS_Shape wedge(double middle, double opening, double reach, double z0, double z1)
{
    double const side = reach / std::cos(opening / 2);
    auto const corner = [&](double angle) { return gp_Pnt(side * std::cos(angle), side * std::sin(angle), z0); };
    BRepBuilderAPI_MakePolygon triangle(gp_Pnt(0, 0, z0), corner(middle - opening / 2), corner(middle + opening / 2),
                                        true);
    BRepBuilderAPI_MakeFace face(triangle.Wire(), true);
    return BRepPrimAPI_MakePrism(face.Shape(), gp_Vec(0, 0, z1 - z0)).Shape();
}

std::vector<gp_Pln> wedgePlanes(double middle, double opening)
{
    std::vector<gp_Pln> planes;
    for (double const angle : {middle - opening / 2, middle + opening / 2})
        planes.emplace_back(gp::Origin(), gp_Dir(-std::sin(angle), std::cos(angle), 0));
    return planes;
}

TopoDS_Shape cut(TopoDS_Shape const& body, std::vector<TopoDS_Shape> const& tools)
{
    BRepAlgoAPI_Cut operation;
    operation.SetArguments(listed({body}));
    operation.SetTools(listed(tools));
    operation.Build();
    if (operation.HasErrors())
        throw std::runtime_error("cutting a part of the sample failed");
    return unwrapped(operation.Shape());
}

TopoDS_Shape fuse(std::vector<TopoDS_Shape> const& bodies)
{
    BRepAlgoAPI_Fuse operation;
    operation.SetArguments(listed({bodies.front()}));
    operation.SetTools(listed({bodies.begin() + 1, bodies.end()}));
    operation.Build();
    if (operation.HasErrors())
        throw std::runtime_error("joining a part of the sample failed");
    return unwrapped(operation.Shape());
}

std::vector<TopoDS_Face> facesIn(TopoDS_Shape const& shape, std::vector<gp_Pln> const& planes)
{
    double const tolerance = 1e-6;
    std::vector<TopoDS_Face> found;
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
        TopoDS_Face const face = TopoDS::Face(explorer.Current());
        BRepAdaptor_Surface const surface(face);
        if (surface.GetType() != GeomAbs_Plane)
            continue;
        gp_Pln const own = surface.Plane();
        for (auto const& plane : planes)
            if (own.Axis().Direction().IsParallel(plane.Axis().Direction(), tolerance) &&
                plane.Distance(own.Location()) < tolerance) {
                found.push_back(face);
                break;
            }
    }
    return found;
}

} // namespace sample
