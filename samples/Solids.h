#pragma once

#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pln.hxx>

#include <vector>

namespace sample
{

/// A point of a turned profile: distance from the axis and position along it, millimetres.
struct ProfilePoint {
    double radius;
    double z;
};

/// The solid that the closed profile makes when it turns about the z axis. At least three points, radii >= 0.
TopoDS_Shape turned(std::vector<ProfilePoint> const& profile);

/// Cylinder about the line x, y parallel to z, from z0 to z1.
TopoDS_Shape cylinder(double radius, double z0, double z1, double x = 0, double y = 0);

/// Plain ring about the z axis.
TopoDS_Shape ring(double inner, double outer, double z0, double z1);

/// A bar along z with half-round ends, lying on y0 to y1: what a parallel key fills, and what its keyway removes.
TopoDS_Shape keyBody(double width, double y0, double y1, double z0, double z1);

/// A wedge that opens from the z axis in the direction `middle`, `opening` wide (radians, below pi), out to `reach`.
TopoDS_Shape wedge(double middle, double opening, double reach, double z0, double z1);

/// The two planes that bound such a wedge.
std::vector<gp_Pln> wedgePlanes(double middle, double opening);

/// `body` without `tools`. Throws std::runtime_error if the operation fails.
TopoDS_Shape cut(TopoDS_Shape const& body, std::vector<TopoDS_Shape> const& tools);

/// One solid of all `bodies`, which touch or overlap. Throws std::runtime_error if the operation fails.
TopoDS_Shape fuse(std::vector<TopoDS_Shape> const& bodies);

/// The plane faces of `shape` that lie in one of `planes`.
std::vector<TopoDS_Face> facesIn(TopoDS_Shape const& shape, std::vector<gp_Pln> const& planes);

} // namespace sample
