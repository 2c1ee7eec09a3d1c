#include "viewer/import/AssemblyWalker.h"

#include "platform/text/Text.h"
#include "viewer/import/PartTessellator.h"

#include <Message_ProgressScope.hxx>
#include <TDF_LabelMap.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs.hxx>
#include <XCAFPrs_IndexedDataMapOfShapeStyle.hxx>
#include <XCAFPrs_Style.hxx>

#include <algorithm>
#include <cmath>
#include <map>

namespace orvviewer
{

namespace
{

unsigned long packed(Quantity_Color const& color)
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    color.Values(red, green, blue, Quantity_TOC_sRGB);
    auto const byte = [](double part) {
        return static_cast<unsigned long>(std::clamp(std::lround(part * 255.0), 0L, 255L));
    };
    return byte(red) | byte(green) << 8 | byte(blue) << 16;
}

std::wstring nameOf(TDF_Label const& label)
{
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name)) {
        return {};
    }
    auto const& text = name->Get();
    std::string utf8(static_cast<std::size_t>(text.LengthOfCString()), '\0');
    Standard_PCharacter buffer = utf8.data();
    text.ToUTF8CString(buffer);
    return orvtext::fromUtf8(utf8);
}

orvsg::Transform transformOf(gp_Trsf const& placement)
{
    orvsg::Transform transform;
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 3; ++row) {
            transform.matrix[static_cast<unsigned char>(4 * column + row)] =
                static_cast<float>(placement.Value(row + 1, column + 1));
        }
    }
    transform.isSet = !(transform.matrix == orvsg::Transform().matrix);
    return transform;
}

/// Whether the components are but pieces of one product's shape: the reader makes a component of each representation,
/// named by itself ("=>[0:1:1:2]" of "SOLID"), while each use of another product bears a name of the file. Several
/// solids stay apart: they may be bodies that a reviewer wants to hide one by one.
bool isOnePart(TDF_Label const& assembly)
{
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(assembly, components);
    int solids = 0;
    for (auto const& component : components) {
        TDF_Label piece;
        if (!XCAFDoc_ShapeTool::GetReferredShape(component, piece) || XCAFDoc_ShapeTool::IsAssembly(piece) ||
            !nameOf(component).starts_with(L"=>[")) {
            return false;
        }
        TopTools_IndexedMapOfShape found;
        TopExp::MapShapes(XCAFDoc_ShapeTool::GetShape(piece), TopAbs_SOLID, found);
        solids += found.Extent();
    }
    return solids == 1;
}

class Walker
{
public:
    Walker(Handle(TDocStd_Document) const& document, bool ofStep, int partCount, Message_ProgressRange const& range)
        : colors(XCAFDoc_DocumentTool::ColorTool(document->Main())), isStep(ofStep),
          scope(range, "Tessellating", partCount)
    {
    }

    /// Adds the occurrence of a label and all below it; returns its number.
    int addOccurrence(TDF_Label const& label, int parent)
    {
        TDF_Label product = label;
        gp_Trsf placement;
        if (XCAFDoc_ShapeTool::IsReference(label)) {
            XCAFDoc_ShapeTool::GetReferredShape(label, product);
            placement = XCAFDoc_ShapeTool::GetLocation(label).Transformation();
        }
        // The product's name, not the occurrence's: equal parts are to read alike, in the tree and in part lists.
        std::wstring name = nameOf(product);
        if (name.empty()) {
            name = nameOf(label);
        }
        int const number = addNode(std::move(name), parent, transformOf(placement));
        setAppearance(number, label, product);

        if (XCAFDoc_ShapeTool::IsAssembly(product) && !(isStep && isOnePart(product))) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(product, components);
            for (auto const& component : components) {
                if (!scope.More()) {
                    break;
                }
                addOccurrence(component, number);
            }
        } else {
            setMesh(number, product);
        }
        return number;
    }

    int addNode(std::wstring name, int parent, orvsg::Transform const& transform)
    {
        int const number = static_cast<int>(nodes.size());
        orvsg::Node node;
        node.name = name.empty() ? L"Part " + std::to_wstring(number) : std::move(name);
        node.parent = parent;
        nodes.push_back(std::move(node));
        if (parent >= 0) {
            nodes[static_cast<std::size_t>(parent)].children.push_back(number);
        }
        auto& resources = *records.resources;
        resources.transforms.append(transform);
        resources.initialTransforms.append(transform);
        resources.boxes.append({});
        resources.materials.append({});
        records.topology->transformOfNode.append(number);
        records.runtime->visibility.push_back(true);
        return number;
    }

    SceneRecords finish()
    {
        records.topology->nodes = orvsg::Container<int, orvsg::Node>(std::move(nodes));
        return std::move(records);
    }

private:
    bool ownColor(TDF_Label const& label, Quantity_ColorRGBA& color) const
    {
        return colors->GetColor(label, XCAFDoc_ColorSurf, color) || colors->GetColor(label, XCAFDoc_ColorGen, color);
    }

    void setAppearance(int number, TDF_Label const& occurrence, TDF_Label const& product)
    {
        orvsg::Material material;
        Quantity_ColorRGBA color;
        if (ownColor(occurrence, color) || ownColor(product, color)) {
            material.hasOwnColor = true;
            material.ownColor = packed(color.GetRGB());
            material.ownTransparency = 1.0F - color.Alpha();
        }
        records.resources->materials.setValue(number, material);
        if (!colors->IsVisible(occurrence) || !colors->IsVisible(product)) {
            records.runtime->visibility[static_cast<std::size_t>(number)] = false;
        }
    }

    /// Colours that the file gives to single faces, or to solids and shells within the part.
    static TopTools_DataMapOfShapeInteger faceColorsOf(TDF_Label const& product, TopoDS_Shape const& whole)
    {
        XCAFPrs_IndexedDataMapOfShapeStyle styles;
        XCAFPrs::CollectStyleSettings(product, TopLoc_Location(), styles);
        TopTools_DataMapOfShapeInteger colorsOfFaces;
        // From the coarse to the fine, so that a face's own colour prevails over that of its solid.
        for (int type = TopAbs_COMPOUND; type <= TopAbs_FACE; ++type) {
            for (int i = 1; i <= styles.Extent(); ++i) {
                auto const& shape = styles.FindKey(i);
                auto const& style = styles.FindFromIndex(i);
                if (static_cast<int>(shape.ShapeType()) != type || shape.IsSame(whole) || !style.IsSetColorSurf()) {
                    continue;
                }
                TopTools_IndexedMapOfShape faces;
                TopExp::MapShapes(shape, TopAbs_FACE, faces);
                for (int number = 1; number <= faces.Extent(); ++number) {
                    colorsOfFaces.Bind(faces.FindKey(number), static_cast<int>(packed(style.GetColorSurf())));
                }
            }
        }
        return colorsOfFaces;
    }

    void setMesh(int number, TDF_Label const& product)
    {
        TCollection_AsciiString entry;
        TDF_Tool::Entry(product, entry);
        auto const [known, isNew] = meshOfProduct.emplace(entry.ToCString(), -1);
        if (isNew) {
            TopoDS_Shape const shape = XCAFDoc_ShapeTool::GetShape(product);
            auto tessellation = shape.IsNull() ? Tessellation() : tessellate(shape, faceColorsOf(product, shape));
            scope.Next();
            if (!tessellation.mesh.triangles.empty()) {
                known->second = static_cast<int>(records.resources->meshes.size());
                boxes.push_back(boxOf(tessellation.mesh));
                records.resources->meshes.push_back(std::make_shared<orvsg::Mesh const>(std::move(tessellation.mesh)));
                records.edges->segmentsOfMesh.push_back(std::move(tessellation.edgeSegments));
            }
        }
        nodes[static_cast<std::size_t>(number)].mesh = known->second;
        if (known->second >= 0) {
            records.resources->boxes.setValue(number, boxes[static_cast<std::size_t>(known->second)]);
        }
    }

    static orvsg::BBox boxOf(orvsg::Mesh const& mesh)
    {
        orvsg::BBox box;
        for (std::size_t i = 0; i + 2 < mesh.positions.size(); i += 3) {
            box.add({mesh.positions[i], mesh.positions[i + 1], mesh.positions[i + 2]});
        }
        return box;
    }

    Handle(XCAFDoc_ColorTool) colors;
    bool isStep;
    Message_ProgressScope scope;
    SceneRecords records;
    std::vector<orvsg::Node> nodes;
    std::vector<orvsg::BBox> boxes;
    std::map<std::string, int> meshOfProduct;
};

int countParts(Handle(XCAFDoc_ShapeTool) const& shapes)
{
    TDF_LabelSequence all;
    shapes->GetShapes(all);
    int parts = 0;
    for (auto const& label : all) {
        parts += XCAFDoc_ShapeTool::IsAssembly(label) ? 0 : 1;
    }
    return std::max(parts, 1);
}

} // namespace

SceneRecords walkAssembly(Handle(TDocStd_Document) const& document, std::wstring const& rootName, bool ofStep,
                          Message_ProgressRange const& progress)
{
    auto const shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    TDF_LabelSequence tops;
    shapes->GetFreeShapes(tops);
    Walker walker(document, ofStep, countParts(shapes), progress);
    int const root = tops.Length() == 1 ? -1 : walker.addNode(rootName, -1, {});
    for (auto const& top : tops) {
        walker.addOccurrence(top, root);
    }
    return walker.finish();
}

} // namespace orvviewer
