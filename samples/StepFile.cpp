#include "samples/StepFile.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <Interface_Static.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

namespace sample
{

namespace
{

using Styles = StepVisual_MechanicalDesignGeometricPresentationRepresentation;

// Number of the first shape that the styles colour.
int firstStyled(Handle(Styles) const& styles, Handle(StepData_StepModel) const& model)
{
    int lowest = model->NbEntities() + 1;
    for (int i = 1; i <= styles->NbItems(); ++i) {
        auto const item = Handle(StepVisual_StyledItem)::DownCast(styles->ItemsValue(i));
        if (!item.IsNull() && !item->Item().IsNull())
            lowest = std::min(lowest, model->Number(item->Item()));
    }
    return lowest;
}

std::string nameOf(TDF_Label const& label)
{
    Handle(TDataStd_Name) name;
    return label.FindAttribute(TDataStd_Name::GetID(), name) ? TCollection_AsciiString(name->Get()).ToCString() : "";
}

std::string productName(Handle(StepBasic_ProductDefinition) const& definition)
{
    return definition->Formation()->OfProduct()->Name()->ToCString();
}

// The writer can't tell an instance that stands where its part was modelled from the part, and numbers it. Here it gets
// its name: of such instances an assembly has at most one a part.
void nameUnplacedInstances(Handle(TDocStd_Document) const& document, Handle(StepData_StepModel) const& model)
{
    std::map<std::pair<std::string, std::string>, std::string> names;
    TDF_LabelSequence all;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(all);
    for (auto const& assembly : all) {
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(assembly, components);
        for (auto const& component : components) {
            TDF_Label part;
            if (XCAFDoc_ShapeTool::GetLocation(component).Transformation().Form() == gp_Identity &&
                XCAFDoc_ShapeTool::GetReferredShape(component, part))
                names[{nameOf(assembly), nameOf(part)}] = nameOf(component);
        }
    }
    for (int i = 1; i <= model->NbEntities(); ++i) {
        auto const use = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(model->Value(i));
        if (use.IsNull())
            continue;
        auto const name =
            names.find({productName(use->RelatingProductDefinition()), productName(use->RelatedProductDefinition())});
        if (name != names.end())
            use->SetName(new TCollection_HAsciiString(name->second.c_str()));
    }
}

// The writer appends the parts' styles in the order of a table hashed by addresses, which no two runs share. Here they
// follow the order of the shapes.
Handle(StepData_StepModel) ordered(Handle(StepData_StepModel) const& model, Handle(StepData_Protocol) const& protocol)
{
    std::vector<std::pair<int, Handle(Styles)>> styles;
    int shapesEnd = model->NbEntities();
    for (int i = 1; i <= model->NbEntities(); ++i)
        if (auto const found = Handle(Styles)::DownCast(model->Value(i)); !found.IsNull()) {
            shapesEnd = std::min(shapesEnd, i - 1);
            styles.emplace_back(firstStyled(found, model), found);
        }
    std::stable_sort(styles.begin(), styles.end(), [](auto const& a, auto const& b) { return a.first < b.first; });

    Handle(StepData_StepModel) result = new StepData_StepModel;
    for (int i = 1; i <= shapesEnd; ++i)
        result->AddEntity(model->Value(i));
    for (auto const& entry : styles)
        result->AddWithRefs(entry.second, protocol);
    if (result->NbEntities() != model->NbEntities())
        throw std::runtime_error("the sample's STEP entities can't be put in order");
    return result;
}

void addHeader(Handle(StepData_StepModel) const& model)
{
    auto const text = [](char const* value) { return new TCollection_HAsciiString(value); };
    APIHeaderSection_MakeHeader header;
    header.SetName(text("planetary-gearbox.step"));
    header.SetTimeStamp(text("2024-01-01T00:00:00"));
    header.SetAuthorValue(1, text("Orvanta"));
    header.SetOrganizationValue(1, text("Orvanta"));
    header.SetPreprocessorVersion(text("Orvanta sample maker"));
    header.SetOriginatingSystem(text("Orvanta sample maker"));
    header.SetAuthorisation(text(""));
    header.SetDescriptionValue(1, text("Two-stage planetary gearbox, cut open"));
    header.SetSchemaIdentifiersValue(1, text("AUTOMOTIVE_DESIGN { 1 0 10303 214 1 1 1 1 }"));
    header.Apply(model);
}

} // namespace

void writeStep(Handle(TDocStd_Document) const& document, std::string const& path)
{
    STEPCAFControl_Writer writer;
    Interface_Static::SetCVal("write.step.schema", "AP214IS");
    Interface_Static::SetCVal("write.step.unit", "MM");
    writer.SetNameMode(true);
    writer.SetColorMode(true);
    if (!writer.Transfer(document, STEPControl_AsIs))
        throw std::runtime_error("the sample can't be turned into STEP entities");

    auto const protocol = Handle(StepData_Protocol)::DownCast(writer.ChangeWriter().WS()->Protocol());
    nameUnplacedInstances(document, writer.ChangeWriter().Model());
    Handle(StepData_StepModel) const model = ordered(writer.ChangeWriter().Model(), protocol);
    addHeader(model);

    StepData_StepWriter text(model);
    text.SendModel(protocol);
    std::ofstream stream(std::filesystem::path(path), std::ios::binary);
    if (stream && text.Print(stream) && stream.flush())
        return;
    throw std::runtime_error("can't write " + path + ": check that the folder exists and that the disk has room");
}

} // namespace sample
