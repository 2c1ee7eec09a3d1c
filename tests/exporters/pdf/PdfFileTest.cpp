// The 3D PDF, opened again with other software.

#include "exporters/CommandOutput.h"
#include "exporters/ExportLibraries.h"
#include "exporters/FileSizeLimit.h"
#include "exporters/pdf/PagePicture.h"
#include "exporters/pdfwriter/View3D.h"
#include "exporters/prc/PrcReader.h"
#include "host/runtime/IFrameRenderer.h"
#include "support/TestScene.h"
#include "viewer/ModelFixture.h"

#include <gmock/gmock.h>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <cmath>

using namespace orvtest;
using testing::HasSubstr;

namespace
{

/// Draws every view as one field of colour, and notes what it was asked for.
class ColorField final : public orvhost::IFrameRenderer
{
public:
    bool drawFrame(std::shared_ptr<orv::IDocument> const& document, unsigned int width, unsigned int height, bool,
                   unsigned char* pixels) override
    {
        settings = orv::recordOf<orvgl::SCRenderer>(document)->settings;
        aspect = static_cast<double>(width) / height;
        for (std::size_t i = 0; i < std::size_t{width} * height; ++i) {
            pixels[3 * i] = 200;
            pixels[3 * i + 1] = 30;
            pixels[3 * i + 2] = 60;
        }
        return canDraw;
    }
    orvgl::RendererSettings settings;
    double aspect = 0;
    bool canDraw = true;
};

class PdfFile : public testing::Test
{
protected:
    void SetUp() override
    {
        scene.renderer->camera->eye = {0, -500, 0};
        scene.renderer->camera->target = {0, 0, 0};
        scene.renderer->camera->up = {0, 0, 1};
        before = orvhost::setFrameRenderer(renderer);
    }
    void TearDown() override { orvhost::setFrameRenderer(before); }

    void save()
    {
        ASSERT_EQ(loadExporter("pdfwriter")->save(file.wstring().c_str(), scene.document, nullptr, &bar),
                  orvexp::Status::ok);
        pdf.processFile(file.c_str());
    }
    QPDFObjectHandle annotation()
    {
        auto pages = QPDFPageDocumentHelper(pdf).getAllPages();
        EXPECT_EQ(pages.size(), 1U);
        auto list = pages.at(0).getObjectHandle().getKey("/Annots");
        EXPECT_EQ(list.getArrayNItems(), 1);
        return list.getArrayItem(0);
    }
    std::vector<double> cameraOf(QPDFObjectHandle view)
    {
        std::vector<double> numbers;
        for (auto& item : view.getKey("/C2W").getArrayAsVector()) {
            numbers.push_back(item.getNumericValue());
        }
        return numbers;
    }
    TestScene scene;
    TemporaryFolder folder;
    std::filesystem::path file = folder.path / "gearbox.pdf";
    std::shared_ptr<ColorField> renderer = std::make_shared<ColorField>();
    std::shared_ptr<orvhost::IFrameRenderer> before;
    ProgressBar bar;
    QPDF pdf;
};

TEST_F(PdfFile, IsSoundAndOfOnePage)
{
    save();
    EXPECT_THAT(outputOf("qpdf --check '" + file.string() + "' 2>&1"),
                HasSubstr("No syntax or stream encoding errors"));
    EXPECT_THAT(outputOf("pdfinfo '" + file.string() + "'"), testing::ContainsRegex("Pages: +1\n"));
    auto const text = outputOf("pdftotext -layout '" + file.string() + "' -");
    EXPECT_THAT(text, HasSubstr("gearbox"));
    EXPECT_THAT(text, HasSubstr("4 parts"));
    EXPECT_THAT(text, HasSubstr("48 triangles"));
}

TEST_F(PdfFile, HoldsTheModelAsPrc)
{
    scene.moveTo(3, 1, 2, 3);
    save();
    auto stream = annotation().getKey("/3DD");
    EXPECT_EQ(stream.getDict().getKey("/Type").getName(), "/3D");
    EXPECT_EQ(stream.getDict().getKey("/Subtype").getName(), "/PRC");
    auto const content = stream.getStreamData();
    auto const read = prc::read({content->getBuffer(), content->getSize()});
    ASSERT_TRUE(read.scene) << read.problem;
    EXPECT_EQ(read.scene->meshes.size(), 3U);
    EXPECT_EQ(read.scene->occurrences.at(read.scene->root).name, "gearbox");
    EXPECT_EQ(read.scene->unit, 1);
}

TEST_F(PdfFile, OpensInTheCurrentView)
{
    save();
    auto object = annotation();
    EXPECT_EQ(object.getKey("/Subtype").getName(), "/3D");
    EXPECT_EQ(object.getKey("/3DV").getIntValue(), 0);
    auto stream = object.getKey("/3DD").getDict();
    EXPECT_EQ(stream.getKey("/DV").getIntValue(), 0);
    auto view = stream.getKey("/VA").getArrayItem(0);
    EXPECT_EQ(view.getKey("/XN").getUTF8Value(), "Current view");
    // From the front: left is -x, up is +z, forward is +y.
    EXPECT_THAT(cameraOf(view),
                testing::Pointwise(testing::DoubleNear(1e-6), {-1, 0, 0, 0, 0, 1, 0, 1, 0, 0, -500, 0}));
    EXPECT_NEAR(view.getKey("/CO").getNumericValue(), 500, 1e-6);
    EXPECT_EQ(view.getKey("/P").getKey("/Subtype").getName(), "/P");
    EXPECT_EQ(view.getKey("/P").getKey("/PS").getName(), "/H") << "the angle is the vertical one";
    EXPECT_NEAR(view.getKey("/P").getKey("/FOV").getNumericValue(), 30, 1e-6);
    EXPECT_GE(stream.getKey("/VA").getArrayNItems(), 5) << "and the usual views";
}

TEST_F(PdfFile, ParallelViewsKeepTheirHeight)
{
    scene.renderer->camera->orthographic = true;
    save();
    auto projection = annotation().getKey("/3DD").getDict().getKey("/VA").getArrayItem(0).getKey("/P");
    EXPECT_EQ(projection.getKey("/Subtype").getName(), "/O");
    auto const rectangle = annotation().getKey("/Rect").getArrayAsRectangle();
    double const height = 2 * 500 * std::tan(15 * M_PI / 180);
    EXPECT_NEAR(projection.getKey("/OS").getNumericValue() * height, rectangle.ury - rectangle.lly, 1e-2);
}

TEST_F(PdfFile, PosterIsTheCurrentViewWithoutWhatStandsBesideTheModel)
{
    save();
    EXPECT_FALSE(renderer->settings.showAxisCross || renderer->settings.showViewCube ||
                 renderer->settings.showSelection);
    EXPECT_EQ(scene.renderer->settings, orvgl::RendererSettings()) << "the view is left as it was";
    auto const rectangle = annotation().getKey("/Rect").getArrayAsRectangle();
    EXPECT_NEAR(renderer->aspect, (rectangle.urx - rectangle.llx) / (rectangle.ury - rectangle.lly), 0.01);
    auto const page = pageOf(file, 72);
    ASSERT_GT(page.width, page.height);
    auto const color = page.at(0.5, 0.5);
    EXPECT_NEAR(color[0], 200, 3);
    EXPECT_NEAR(color[1], 30, 3);
    EXPECT_NEAR(color[2], 60, 3);
    EXPECT_EQ(page.at(0.01, 0.5), (std::array<int, 3>{255, 255, 255})) << "outside of it the page is white";
}

TEST_F(PdfFile, FrameRunsAroundThePosterOnAllSides)
{
    save();
    auto const rectangle = annotation().getKey("/Rect").getArrayAsRectangle();
    for (int const pixelsPerInch : {60, 72, 96, 150, 300}) {
        auto const page = pageOf(file, pixelsPerInch);
        double const perPoint = pixelsPerInch / 72.0;
        double const height = page.height / perPoint;
        // From four points outside of an edge's middle inwards: a grey between the page and the poster.
        auto const meetsLine = [&](double x, double y, int right, int down) {
            bool isGrey = false;
            for (double way = -4; way < 2; way += 0.5 / perPoint) {
                auto const color = page.pixel(static_cast<int>((x + right * way) * perPoint),
                                              static_cast<int>((y + down * way) * perPoint));
                isGrey = isGrey || (color[0] == color[1] && color[1] == color[2] && color[0] < 250);
            }
            return isGrey;
        };
        double const middle = height - (rectangle.lly + rectangle.ury) / 2;
        EXPECT_TRUE(meetsLine(rectangle.llx, middle, 1, 0)) << pixelsPerInch;
        EXPECT_TRUE(meetsLine(rectangle.urx, middle, -1, 0)) << pixelsPerInch;
        EXPECT_TRUE(meetsLine(300, height - rectangle.ury, 0, 1)) << pixelsPerInch;
        EXPECT_TRUE(meetsLine(300, height - rectangle.lly, 0, -1)) << pixelsPerInch;
    }
}

TEST_F(PdfFile, WithoutADisplayTheFieldSaysWhatItIs)
{
    renderer->canDraw = false;
    save();
    EXPECT_FALSE(annotation().hasKey("/AP"));
    EXPECT_THAT(outputOf("pdftotext '" + file.string() + "' -"), HasSubstr("3D model"));
}

TEST_F(PdfFile, TitleInAnyScriptIsReadable)
{
    scene.info->setFile(L"/models/Getriebe größer 歯車.step");
    save();
    EXPECT_THAT(outputOf("pdftotext '" + file.string() + "' -"), HasSubstr("Getriebe größer 歯車"));
    EXPECT_EQ(annotation().getKey("/Contents").getUTF8Value(), "3D model of Getriebe größer 歯車");
}

TEST_F(PdfFile, FactsCountOneAsOne)
{
    save();
    EXPECT_THAT(outputOf("pdftotext '" + file.string() + "' -"), HasSubstr("48 triangles"));
    auto single = std::make_shared<orvsg::Mesh>(*scene.resources->meshes[0]);
    single->triangles.resize(3);
    single->faces = {{0, 1, {}}};
    auto root = scene.topology->nodes.getValue(0);
    root.children = {1};
    scene.resources->meshes[0] = single;
    scene.topology->nodes = orvsg::Container<int, orvsg::Node>({root, scene.topology->nodes.getValue(1)});
    save();
    auto const text = outputOf("pdftotext '" + file.string() + "' -");
    EXPECT_THAT(text, testing::ContainsRegex("1 part[^s]"));
    EXPECT_THAT(text, testing::ContainsRegex("1 triangle[^s]"));
}

TEST_F(PdfFile, ShowsProgressThatRisesToTheEnd)
{
    save();
    EXPECT_TRUE(std::is_sorted(bar.percents.begin(), bar.percents.end()));
    EXPECT_EQ(bar.percents.back(), 100);
}

TEST_F(PdfFile, SizeThatTheDiskRefusesLeavesNothing)
{
    prctest::FileSizeLimit const limit(2000);
    EXPECT_EQ(loadExporter("pdfwriter")->save(file.wstring().c_str(), scene.document, nullptr, nullptr),
              orvexp::Status::fileTooLarge);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path));
}

TEST(PdfView, AnyCameraMakesAView)
{
    float const nothing = std::nanf("");
    orvgl::Camera straightDown;
    straightDown.eye = {0, 0, 100};
    straightDown.up = {0, 0, 1};
    orvgl::Camera onTarget;
    onTarget.eye = onTarget.target = {5, 5, 5};
    orvgl::Camera broken;
    broken.eye = {nothing, 0, 0};
    broken.up = {nothing, 0, 0};
    broken.fieldOfView = nothing;
    for (auto const& camera : {straightDown, onTarget, broken}) {
        auto const view = pdfwriter::viewOf(camera, "a");
        for (std::size_t axis = 0; axis < 3; ++axis) {
            double square = 0;
            for (std::size_t i = 0; i < 3; ++i) {
                square += view.cameraToWorld[3 * axis + i] * view.cameraToWorld[3 * axis + i];
            }
            EXPECT_NEAR(square, 1, 1e-9);
        }
        EXPECT_GT(view.orbit, 0);
        EXPECT_TRUE(std::isfinite(view.pictureHeight));
    }
}

} // namespace
