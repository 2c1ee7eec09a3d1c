#include "samples/GearboxAssembly.h"
#include "samples/GearboxLayout.h"
#include "samples/StepFile.h"

#include <gmock/gmock.h>

#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <Quantity_Color.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Application.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace
{

std::string const sampleFile = ORV_BINARY_DIR "/samples/planetary-gearbox.step";

std::string nameOf(TDF_Label const& label)
{
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name))
        return {};
    std::string text(static_cast<std::size_t>(name->Get().LengthOfCString()), '\0');
    char* out = text.data();
    name->Get().ToUTF8CString(out);
    return text;
}

std::string contentOf(std::filesystem::path const& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// Reads the file once for the whole suite, as the viewer would.
struct Model {
    Model()
    {
        Handle(TDocStd_Application) const application = new TDocStd_Application();
        application->NewDocument("BinXCAF", document);
        STEPCAFControl_Reader reader;
        reader.SetNameMode(true);
        reader.SetColorMode(true);
        if (reader.ReadFile(sampleFile.c_str()) != IFSelect_RetDone || !reader.Transfer(document))
            throw std::runtime_error("the sample can't be read: " + sampleFile);
        shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
        colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
        TDF_LabelSequence free;
        shapes->GetFreeShapes(free);
        if (free.Length() != 1)
            throw std::runtime_error("the sample has not one root");
        root = free.Value(1);
        walk(root, "", 0);
    }

    void walk(TDF_Label const& label, std::string const& path, int depth)
    {
        deepest = std::max(deepest, depth);
        TDF_LabelSequence components;
        shapes->GetComponents(label, components);
        for (TDF_LabelSequence::Iterator item(components); item.More(); item.Next()) {
            TDF_Label part;
            shapes->GetReferredShape(item.Value(), part);
            std::string const here = path + "/" + nameOf(item.Value());
            if (shapes->IsAssembly(part)) {
                assemblies.push_back(here);
                walk(part, here, depth + 1);
            } else {
                leaves.emplace(here, part);
                TCollection_AsciiString entry;
                TDF_Tool::Entry(part, entry);
                uses[entry.ToCString()]++;
                parts[nameOf(part)] = part;
            }
        }
    }

    Handle(TDocStd_Document) document;
    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    TDF_Label root;
    int deepest = 0;
    std::vector<std::string> assemblies;
    std::multimap<std::string, TDF_Label> leaves;
    std::map<std::string, int> uses;
    std::map<std::string, TDF_Label> parts;
};

Model const& model()
{
    static Model const instance;
    return instance;
}

TEST(Gearbox, HoldsFortyOneInstancesOfTwentyFourPartsInNestedAssemblies)
{
    EXPECT_EQ(nameOf(model().root), "Planetary gearbox");
    EXPECT_EQ(model().leaves.size(), 41U);
    EXPECT_EQ(model().uses.size(), 24U);
    EXPECT_EQ(model().assemblies.size(), 16U);
    EXPECT_EQ(model().deepest, 3);
}

TEST(Gearbox, NamesEveryInstanceUniquely)
{
    std::set<std::string> paths;
    for (auto const& [path, part] : model().leaves)
        EXPECT_TRUE(paths.insert(path).second) << path;
    EXPECT_TRUE(paths.count("/Stage 1/Carrier assembly/Planet 2/Planet gear"));
    EXPECT_TRUE(paths.count("/Stage 2/Ring gear"));
    EXPECT_TRUE(paths.count("/Housing/Flange bolt 6"));
    EXPECT_TRUE(paths.count("/Output shaft assembly/Output bearing 2/Ball cage"));
}

TEST(Gearbox, StoresRepeatedPartsOnce)
{
    auto const usesOf = [](std::string const& name) {
        TCollection_AsciiString entry;
        TDF_Tool::Entry(model().parts.at(name), entry);
        return model().uses.at(entry.ToCString());
    };
    EXPECT_EQ(usesOf("Hexagon bolt M8x20"), 6);
    EXPECT_EQ(usesOf("Planet gear 1"), 3);
    EXPECT_EQ(usesOf("Planet pin 2"), 3);
    EXPECT_EQ(usesOf("Ring gear"), 2);
    EXPECT_EQ(usesOf("Ball bearing 35x72x17 ball cage"), 2);
}

TEST(Gearbox, EveryPartIsOneValidColouredSolid)
{
    for (auto const& [name, label] : model().parts) {
        TopoDS_Shape const shape = XCAFDoc_ShapeTool::GetShape(label);
        EXPECT_TRUE(BRepCheck_Analyzer(shape).IsValid()) << name;
        int solids = 0;
        for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next())
            ++solids;
        EXPECT_EQ(solids, 1) << name;
        GProp_GProps volume;
        BRepGProp::VolumeProperties(shape, volume);
        EXPECT_GT(volume.Mass(), 100) << name;
        Quantity_Color color;
        EXPECT_TRUE(model().colors->GetColor(shape, XCAFDoc_ColorSurf, color)) << name;
    }
}

TEST(Gearbox, PaintsTheFacesThatTheOpeningMade)
{
    Quantity_Color const red(0.78, 0.20, 0.17, Quantity_TOC_sRGB);
    auto const redFaces = [&](std::string const& name) {
        int count = 0;
        for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(model().parts.at(name)), TopAbs_FACE); face.More();
             face.Next()) {
            Quantity_Color color;
            if (model().colors->GetColor(face.Current(), XCAFDoc_ColorSurf, color) && color.Distance(red) < 0.01)
                ++count;
        }
        return count;
    };
    EXPECT_EQ(redFaces("Input housing"), 2);
    EXPECT_EQ(redFaces("Output housing"), 2);
    EXPECT_EQ(redFaces("Ring gear"), 2);
    EXPECT_EQ(redFaces("Planet gear 1"), 0);
}

// In the usual view from the front and above, right of the middle, one looks into it.
TEST(Gearbox, LiesLevelAndOpensToTheFrontAndAbove)
{
    GProp_GProps volume;
    TDF_LabelSequence top;
    model().shapes->GetComponents(model().root, top);
    for (TDF_LabelSequence::Iterator item(top); item.More(); item.Next())
        if (nameOf(item.Value()) == "Housing")
            BRepGProp::VolumeProperties(XCAFDoc_ShapeTool::GetShape(item.Value()), volume);
    gp_Pnt const centre = volume.CentreOfMass();
    EXPECT_GT(centre.X(), 50);
    EXPECT_GT(centre.Y(), 5);
    EXPECT_LT(centre.Z(), -5);
}

TEST(Gearbox, IsTheSameFileEveryTime)
{
    auto const again = std::filesystem::path(ORV_BINARY_DIR) / "samples" / "again.step";
    sample::writeStep(sample::makeGearbox(), again.string());
    EXPECT_TRUE(contentOf(again) == contentOf(sampleFile));
    std::filesystem::remove(again);
}

TEST(Gearbox, SaysThatAFileCannotBeWritten)
{
    try {
        sample::writeStep(sample::makeGearbox(), ORV_BINARY_DIR "/no such folder/gearbox.step");
        FAIL() << "writing into a missing folder succeeded";
    } catch (std::runtime_error const& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("no such folder/gearbox.step"));
    }
}

} // namespace
