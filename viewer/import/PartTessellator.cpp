#include "viewer/import/PartTessellator.h"

#include "viewer/import/MeshShading.h"

#include <BRepBndLib.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <Poly_Polygon3D.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <StdPrs_ToolTriangulatedShape.hxx>
#include <TColStd_Array1OfInteger.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>

#include <algorithm>
#include <cmath>

namespace orvviewer
{

namespace
{

constexpr double creaseDegrees = 30.0;
constexpr double angularDeflection = 0.3; ///< radians between neighbouring segments of a curve
constexpr double relativeDeflection = 0.001;

void append(std::vector<float>& list, gp_XYZ const& point)
{
    list.push_back(static_cast<float>(point.X()));
    list.push_back(static_cast<float>(point.Y()));
    list.push_back(static_cast<float>(point.Z()));
}

void triangulate(TopoDS_Shape const& shape)
{
    Bnd_Box box;
    BRepBndLib::Add(shape, box, Standard_False);
    if (box.IsVoid()) {
        return;
    }
    double const diagonal = std::sqrt(box.SquareExtent());
    IMeshTools_Parameters parameters;
    parameters.Deflection = std::clamp(diagonal * relativeDeflection, 1e-4, 10.0);
    parameters.Angle = angularDeflection;
    parameters.InParallel = Standard_True;
    BRepMesh_IncrementalMesh const mesher(shape, parameters);
}

/// Adds one face to the mesh.
void addFace(TopoDS_Face const& face, orvsg::Mesh& mesh)
{
    TopLoc_Location location;
    Handle(Poly_Triangulation) const triangulation = BRep_Tool::Triangulation(face, location);
    if (triangulation.IsNull() || triangulation->NbTriangles() == 0) {
        return;
    }
    if (!BRep_Tool::Surface(face).IsNull()) {
        StdPrs_ToolTriangulatedShape::ComputeNormals(face, triangulation);
    }

    gp_Trsf const placement = location.Transformation();
    bool const isReversed = face.Orientation() == TopAbs_REVERSED;
    bool const isFlipped = isReversed != placement.IsNegative();

    orvsg::Mesh part;
    for (int i = 1; i <= triangulation->NbNodes(); ++i) {
        append(part.positions, triangulation->Node(i).Transformed(placement).XYZ());
    }
    for (int i = 1; i <= triangulation->NbTriangles(); ++i) {
        int a = 0;
        int b = 0;
        int c = 0;
        triangulation->Triangle(i).Get(a, b, c);
        if (isFlipped) {
            std::swap(b, c);
        }
        for (int const corner : {a, b, c}) {
            part.triangles.push_back(static_cast<std::uint32_t>(corner - 1));
        }
    }
    if (triangulation->HasNormals()) {
        for (int i = 1; i <= triangulation->NbNodes(); ++i) {
            gp_Dir const normal = triangulation->Normal(i).Transformed(placement);
            append(part.normals, isReversed ? normal.XYZ().Reversed() : normal.XYZ());
        }
    } else {
        shadeByCrease(part, creaseDegrees);
    }

    auto const firstVertex = static_cast<std::uint32_t>(mesh.positions.size() / 3);
    mesh.positions.insert(mesh.positions.end(), part.positions.begin(), part.positions.end());
    mesh.normals.insert(mesh.normals.end(), part.normals.begin(), part.normals.end());
    for (auto const index : part.triangles) {
        mesh.triangles.push_back(firstVertex + index);
    }
}

/// The lines that a shape without surfaces has instead of edges.
std::vector<float> polygonsOf(TopoDS_Shape const& shape)
{
    std::vector<float> segments;
    for (TopExp_Explorer edges(shape, TopAbs_EDGE); edges.More(); edges.Next()) {
        TopLoc_Location location;
        Handle(Poly_Polygon3D) const polygon = BRep_Tool::Polygon3D(TopoDS::Edge(edges.Current()), location);
        if (polygon.IsNull()) {
            continue;
        }
        gp_Trsf const placement = location.Transformation();
        for (int i = polygon->Nodes().Lower(); i < polygon->Nodes().Upper(); ++i) {
            append(segments, polygon->Nodes().Value(i).Transformed(placement).XYZ());
            append(segments, polygon->Nodes().Value(i + 1).Transformed(placement).XYZ());
        }
    }
    return segments;
}

bool hasSurface(TopoDS_Shape const& shape)
{
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        if (!BRep_Tool::Surface(TopoDS::Face(faces.Current())).IsNull()) {
            return true;
        }
    }
    return false;
}

void addPolyline(TopoDS_Edge const& edge, TopoDS_Face const& face, std::vector<float>& segments)
{
    TopLoc_Location location;
    Handle(Poly_Triangulation) const triangulation = BRep_Tool::Triangulation(face, location);
    if (triangulation.IsNull()) {
        return;
    }
    Handle(Poly_PolygonOnTriangulation) const polygon =
        BRep_Tool::PolygonOnTriangulation(edge, triangulation, location);
    if (polygon.IsNull()) {
        return;
    }
    gp_Trsf const placement = location.Transformation();
    for (int i = 1; i < polygon->NbNodes(); ++i) {
        append(segments, triangulation->Node(polygon->Node(i)).Transformed(placement).XYZ());
        append(segments, triangulation->Node(polygon->Node(i + 1)).Transformed(placement).XYZ());
    }
}

/// The edges between faces. A seam, where a face meets itself, isn't drawn.
std::vector<float> edgesOf(TopoDS_Shape const& shape)
{
    std::vector<float> segments;
    TopTools_IndexedDataMapOfShapeListOfShape facesOfEdge;
    TopExp::MapShapesAndAncestors(shape, TopAbs_EDGE, TopAbs_FACE, facesOfEdge);
    for (int i = 1; i <= facesOfEdge.Extent(); ++i) {
        auto const& edge = TopoDS::Edge(facesOfEdge.FindKey(i));
        auto const& faces = facesOfEdge.FindFromIndex(i);
        if (faces.IsEmpty() || BRep_Tool::Degenerated(edge)) {
            continue;
        }
        auto const& face = TopoDS::Face(faces.First());
        if (!BRep_Tool::IsClosed(edge, face)) {
            addPolyline(edge, face, segments);
        }
    }
    return segments;
}

} // namespace

Tessellation tessellate(TopoDS_Shape const& shape, TopTools_DataMapOfShapeInteger const& faceColors)
{
    Tessellation result;
    bool const hasSurfaces = hasSurface(shape);
    if (hasSurfaces) {
        triangulate(shape);
    }
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        auto const& face = TopoDS::Face(faces.Current());
        auto const first = static_cast<std::uint32_t>(result.mesh.triangles.size() / 3);
        addFace(face, result.mesh);
        auto const count = static_cast<std::uint32_t>(result.mesh.triangles.size() / 3) - first;
        if (count == 0) {
            continue;
        }
        orvsg::MeshFace entry{first, count, {}};
        if (faceColors.IsBound(face)) {
            entry.color = static_cast<unsigned long>(faceColors.Find(face));
        }
        result.mesh.faces.push_back(entry);
    }
    result.edgeSegments = hasSurfaces ? edgesOf(shape) : polygonsOf(shape);
    if (!hasSurfaces && result.edgeSegments.empty()) {
        result.edgeSegments = creaseSegments(result.mesh, creaseDegrees);
    }
    return result;
}

} // namespace orvviewer
