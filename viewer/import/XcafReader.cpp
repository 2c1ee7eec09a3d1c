#include "viewer/import/XcafReader.h"

#include "viewer/import/NativeState.h"

#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BinTools.hxx>
#include <IGESCAFControl_Reader.hxx>
#include <Poly_Triangulation.hxx>
#include <RWGltf_CafReader.hxx>
#include <RWObj_CafReader.hxx>
#include <RWStl.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDataStd_Name.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <filesystem>
#include <fstream>

namespace orvviewer
{

namespace
{

constexpr double metresInMillimetre = 0.001;

void addSingleShape(TopoDS_Shape const& shape, std::string const& utf8Path, Handle(TDocStd_Document) const& document)
{
    auto const tool = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    TDF_Label const label = tool->AddShape(shape, Standard_False);
    auto const name = std::filesystem::path(utf8Path).stem().string();
    TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str(), Standard_True));
}

bool readStep(std::string const& path, Handle(TDocStd_Document) & document, Message_ProgressRange const& progress)
{
    STEPCAFControl_Reader reader;
    reader.SetLayerMode(Standard_False);
    return reader.ReadFile(path.c_str()) == IFSelect_RetDone && reader.Transfer(document, progress);
}

bool readIges(std::string const& path, Handle(TDocStd_Document) & document, Message_ProgressRange const& progress)
{
    IGESCAFControl_Reader reader;
    reader.SetLayerMode(Standard_False);
    return reader.ReadFile(path.c_str()) == IFSelect_RetDone && reader.Transfer(document, progress);
}

bool readBrep(std::string const& path, Handle(TDocStd_Document) const& document, Message_ProgressRange const& progress)
{
    std::ifstream file(path, std::ios::binary);
    std::string head(32, '\0');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    TopoDS_Shape shape;
    bool const isBinary = head.find("Open CASCADE Topology") != std::string::npos;
    bool const isRead = isBinary ? BinTools::Read(shape, path.c_str(), progress)
                                 : BRepTools::Read(shape, path.c_str(), BRep_Builder(), progress);
    if (isRead && !shape.IsNull()) {
        addSingleShape(shape, path, document);
    }
    return isRead && !shape.IsNull();
}

bool readStl(std::string const& path, Handle(TDocStd_Document) const& document, Message_ProgressRange const& progress)
{
    Handle(Poly_Triangulation) const triangulation = RWStl::ReadFile(path.c_str(), progress);
    if (triangulation.IsNull() || triangulation->NbTriangles() == 0) {
        return false;
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, triangulation);
    addSingleShape(face, path, document);
    return true;
}

bool readMesh(RWMesh_CafReader& reader, std::string const& path, Handle(TDocStd_Document) const& document,
              Message_ProgressRange const& progress)
{
    reader.SetDocument(document);
    reader.SetSystemLengthUnit(metresInMillimetre);
    reader.SetSystemCoordinateSystem(RWMesh_CoordinateSystem_Zup);
    return reader.Perform(path.c_str(), progress);
}

} // namespace

bool readStructured(FileKind kind, std::string const& utf8Path, Handle(TDocStd_Document) & document,
                    Message_ProgressRange const& progress)
{
    switch (kind) {
    case FileKind::step:
        return readStep(utf8Path, document, progress);
    case FileKind::iges:
        return readIges(utf8Path, document, progress);
    case FileKind::brep:
        return readBrep(utf8Path, document, progress);
    case FileKind::stl:
        return readStl(utf8Path, document, progress);
    case FileKind::obj: {
        // The format has neither units nor an upward axis; CAD systems write millimetres with Z up.
        RWObj_CafReader reader;
        reader.SetFileLengthUnit(metresInMillimetre);
        reader.SetFileCoordinateSystem(RWMesh_CoordinateSystem_Zup);
        return readMesh(reader, utf8Path, document, progress);
    }
    case FileKind::gltf: {
        RWGltf_CafReader reader;
        reader.SetFileLengthUnit(1.0);
        reader.SetFileCoordinateSystem(RWMesh_CoordinateSystem_glTF);
        return readMesh(reader, utf8Path, document, progress);
    }
    case FileKind::native:
        return readNative(utf8Path, document, progress);
    case FileKind::unknown:
        break;
    }
    return false;
}

} // namespace orvviewer
