#include "exporters/orvwriter/NativeDocument.h"

#include "exporters/orvwriter/PartShape.h"
#include "exporters/orvwriter/StateArrays.h"
#include "exporters/orvwriter/TreeOrder.h"
#include "host/orvexp/NativeFormat.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "platform/text/Text.h"

#include <BRep_Builder.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <Standard_Failure.hxx>
#include <TDataStd_Name.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Trsf.hxx>

#include <cmath>
#include <map>

namespace orvwriter
{

namespace
{

Quantity_Color colorOf(unsigned long packed)
{
    auto const part = [packed](int shift) { return static_cast<double>((packed >> shift) & 0xFF) / 255.0; };
    return {part(0), part(8), part(16), Quantity_TOC_sRGB};
}

/// Shapes are placed without being scaled or mirrored; the exact matrix stands in the state.
TopLoc_Location locationOf(orvsg::Transform const& transform)
{
    if (!transform.isSet) {
        return {};
    }
    auto const m = [&](int row, int column) -> double {
        return transform.matrix[static_cast<unsigned char>(4 * column + row)];
    };
    gp_Trsf placement;
    try {
        placement.SetValues(m(0, 0), m(0, 1), m(0, 2), m(0, 3), m(1, 0), m(1, 1), m(1, 2), m(1, 3), m(2, 0), m(2, 1),
                            m(2, 2), m(2, 3));
        placement.SetScaleFactor(1.0);
    } catch (Standard_Failure const&) {
        placement = gp_Trsf();
    }
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            if (!std::isfinite(placement.Value(row + 1, column + 1))) {
                return {};
            }
        }
    }
    return TopLoc_Location(placement);
}

class Builder
{
public:
    Builder(std::shared_ptr<orv::IDocument> const& model, Handle(TDocStd_Document) const& document)
        : topology(orv::recordOf<orvsg::SCSceneTopo>(model)), resources(orv::recordOf<orvsg::SCSceneRes>(model)),
          query(model), entries(entriesOf(*topology)), shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          colors(XCAFDoc_DocumentTool::ColorTool(document->Main()))
    {
    }

    /// Children stand behind their parents, so from the last entry on all that an assembly holds is known already.
    void build(std::function<void(double)> const& progress)
    {
        std::vector<TDF_Label> products(entries.size());
        // Kept in the order of the tree, so that the same meshes come back in the same order.
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (entries[i].mesh >= 0) {
                products[i] = productOfMesh(entries[i]);
            }
            progress(0.8 * static_cast<double>(i + 1) / static_cast<double>(entries.size()));
        }
        for (std::size_t i = entries.size(); i-- > 0;) {
            if (products[i].IsNull()) {
                products[i] = emptyProduct();
                setName(products[i], entries[i].node);
            }
            for (std::size_t const child : entries[i].children) {
                addOccurrence(products[i], products[child], entries[child]);
            }
        }
        show(products[0], entries[0]);
        shapes->UpdateAssemblies();
        progress(1);
    }

    std::vector<Entry> const& order() const { return entries; }

private:
    void setName(TDF_Label const& label, int node) const
    {
        auto const name = orvtext::toUtf8(topology->nodes.getValue(node).name);
        TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str(), Standard_True));
    }

    TDF_Label emptyProduct() const
    {
        TopoDS_Compound nothing;
        BRep_Builder().MakeCompound(nothing);
        return shapes->AddShape(nothing, Standard_False, Standard_False);
    }

    TDF_Label productOfMesh(Entry const& entry)
    {
        auto const [known, isNew] = productOf.try_emplace(entry.mesh);
        if (isNew) {
            auto const index = static_cast<std::size_t>(entry.mesh);
            if (index < resources->meshes.size() && resources->meshes[index]) {
                auto const part = makePartShape(*resources->meshes[index]);
                known->second = shapes->AddShape(part.shape, Standard_False, Standard_False);
                for (auto const& [face, color] : part.colored) {
                    TDF_Label const label = shapes->AddSubShape(known->second, face);
                    colors->SetColor(label, colorOf(color), XCAFDoc_ColorSurf);
                }
            } else {
                known->second = emptyProduct();
            }
            setName(known->second, entry.node);
        }
        return known->second;
    }

    void addOccurrence(TDF_Label const& assembly, TDF_Label const& product, Entry const& entry)
    {
        auto const transform = entry.isOwnGeometry
                                   ? orvsg::Transform()
                                   : resources->transforms.getValue(topology->transformOfNode.getValue(entry.node));
        TDF_Label const occurrence = shapes->AddComponent(assembly, product, locationOf(transform));
        setName(occurrence, entry.node);
        show(occurrence, entry);
    }

    /// For other programs, what is seen of the node at the moment.
    void show(TDF_Label const& label, Entry const& entry)
    {
        if (entry.mesh >= 0) {
            Quantity_ColorRGBA const color(colorOf(query.color(entry.node)), 1.0F - query.transparency(entry.node));
            colors->SetColor(label, color, XCAFDoc_ColorSurf);
        }
        if (!query.isShown(entry.node)) {
            colors->SetVisibility(label, Standard_False);
        }
    }

    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRes> resources;
    orvsgutils::SceneQuery query;
    std::vector<Entry> entries;
    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    std::map<int, TDF_Label> productOf;
};

/// The kernel names shapes by their kind unless it is told not to, for the whole process.
class NoNamesOfKinds
{
public:
    NoNamesOfKinds() : before(XCAFDoc_ShapeTool::AutoNaming()) { XCAFDoc_ShapeTool::SetAutoNaming(Standard_False); }
    ~NoNamesOfKinds() { XCAFDoc_ShapeTool::SetAutoNaming(before); }
    NoNamesOfKinds(NoNamesOfKinds const&) = delete;
    NoNamesOfKinds& operator=(NoNamesOfKinds const&) = delete;

private:
    Standard_Boolean before;
};

} // namespace

bool fillDocument(std::shared_ptr<orv::IDocument> const& model, Handle(TDocStd_Document) const& document,
                  std::function<void(double)> const& progress)
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(model);
    if (!topology || topology->nodes.size() == 0 || !orv::recordOf<orvsg::SCSceneRes>(model)) {
        return false;
    }
    NoNamesOfKinds const ownNamesAlone;
    Builder builder(model, document);
    builder.build(progress);
    writeState(model, builder.order(), document->Main().FindChild(orvexp::native::stateTag));
    return true;
}

} // namespace orvwriter
