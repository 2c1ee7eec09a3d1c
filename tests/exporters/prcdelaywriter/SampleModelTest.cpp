#include "exporters/prc/PrcReader.h"
#include "host/orvexp/DelayExportHelper.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "viewer/import/ModelImporter.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>

namespace
{

constexpr wchar_t const* library = L"" ORV_BINARY_DIR "/lib/delay/prcdelaywriter.dll";
std::filesystem::path const sampleFile = ORV_BINARY_DIR "/samples/planetary-gearbox.step";

using Point = std::array<double, 3>;

template <class Matrix, class Coordinate>
Point transformed(Matrix const& m, Coordinate const* p)
{
    Point result;
    for (unsigned char row = 0; row < 3; ++row)
        result[row] = m[row] * p[0] + m[static_cast<unsigned char>(4 + row)] * p[1] +
                      m[static_cast<unsigned char>(8 + row)] * p[2] + m[static_cast<unsigned char>(12 + row)];
    return result;
}

prc::Matrix product(prc::Matrix const& a, prc::Matrix const& b)
{
    prc::Matrix result{};
    for (std::size_t column = 0; column < 4; ++column)
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t k = 0; k < 4; ++k)
                result[4 * column + row] += a[4 * k + row] * b[4 * column + k];
    return result;
}

// What stands where: of each instance its way through the tree, its box in the world, triangles and colour.
struct Instance {
    prc::Box box;
    std::size_t triangles = 0;
    prc::Style style;
    std::size_t paintedTriangles = 0;
};
using Instances = std::map<std::string, Instance>;

// Equal parts have equal names, so the place among the siblings belongs to the way.
std::string pathBelow(std::string const& above, std::size_t place, std::string const& name)
{
    return above + "/" + std::to_string(place) + " " + name;
}

Instances instancesOf(prc::Scene const& scene)
{
    Instances found;
    std::function<void(std::size_t, std::string const&, prc::Matrix const&)> const walk =
        [&](std::size_t index, std::string const& path, prc::Matrix const& parent) {
            auto const& occurrence = scene.occurrences[index];
            auto const world = product(parent, occurrence.placement);
            auto const part = occurrence.prototype ? scene.occurrences[*occurrence.prototype].part : occurrence.part;
            if (part) {
                auto const& body = scene.parts[*part].bodies.at(0);
                auto const& mesh = scene.meshes[body.mesh.value()];
                Instance& instance = found[path];
                for (std::size_t i = 0; i < mesh.points.size(); i += 3) {
                    Point const p = transformed(world, &mesh.points[i]);
                    instance.box.add(p[0], p[1], p[2]);
                }
                instance.triangles = mesh.triangleCount();
                instance.style = scene.styles[body.style.value()];
                for (auto const& face : mesh.faces)
                    instance.paintedTriangles += face.styles.empty() ? 0 : face.triangles;
            }
            for (std::size_t i = 0; i < occurrence.children.size(); ++i)
                walk(occurrence.children[i], pathBelow(path, i, scene.occurrences[occurrence.children[i]].name), world);
        };
    walk(scene.root, scene.occurrences[scene.root].name, prc::identity);
    return found;
}

TEST(SampleModel, ArrivesInTheFileAsItStandsInTheViewer)
{
    orvviewer::ImportProgress progress;
    auto const imported = orvviewer::importModel(sampleFile.wstring(), progress);
    ASSERT_TRUE(imported.document) << testing::PrintToString(imported.error);
    std::string folder = testing::TempDir() + "orv-sample-XXXXXX";
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    std::filesystem::path const file = std::filesystem::path(folder) / "gearbox.prc";
    orvexp::DelayExportHelper exporter(
        std::make_shared<orv::DLLFuncPtrHelper<orvexp::IDelayExporter>>(library, "create", "destroy"));
    ASSERT_EQ(exporter.save(file.wstring().c_str(), imported.document, nullptr, nullptr), orvexp::Status::ok);
    auto const result = prc::readFile(file);
    auto const size = std::filesystem::file_size(file);
    std::filesystem::remove_all(folder);
    ASSERT_TRUE(result.scene) << result.problem;
    EXPECT_EQ(result.scene->name, "planetary-gearbox");
    EXPECT_LT(size, 2'000'000U);

    auto const instances = instancesOf(*result.scene);
    EXPECT_EQ(instances.size(), 41U);
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(imported.document);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(imported.document);
    orvsgutils::SceneQuery const query(imported.document);
    std::size_t compared = 0;
    std::vector<std::string> paths;
    for (int node = 0; node < query.nodeCount(); ++node) {
        auto const& record = topology->nodes.getValue(node);
        std::string const name(record.name.begin(), record.name.end()); // the sample's names are plain
        if (record.parent < 0) {
            paths.push_back(name);
        } else {
            auto const& siblings = topology->nodes.getValue(record.parent).children;
            auto const place = std::find(siblings.begin(), siblings.end(), node) - siblings.begin();
            paths.push_back(
                pathBelow(paths[static_cast<std::size_t>(record.parent)], static_cast<std::size_t>(place), name));
        }
        if (record.mesh < 0)
            continue;
        auto const place = instances.find(paths.back());
        ASSERT_NE(place, instances.end()) << paths.back();
        ++compared;
        auto const& mesh = *resources->meshes[static_cast<std::size_t>(record.mesh)];
        EXPECT_EQ(place->second.triangles, mesh.triangles.size() / 3) << paths.back();
        auto const world = query.worldMatrix(node);
        prc::Box box;
        for (std::size_t i = 0; i < mesh.positions.size(); i += 3) {
            Point const p = transformed(world, &mesh.positions[i]);
            box.add(p[0], p[1], p[2]);
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(place->second.box.minimum[axis], box.minimum[axis], 1e-3) << paths.back();
            EXPECT_NEAR(place->second.box.maximum[axis], box.maximum[axis], 1e-3) << paths.back();
        }
        unsigned long const color = query.color(node);
        EXPECT_DOUBLE_EQ(place->second.style.color.red, static_cast<double>(color & 0xFF) / 255) << paths.back();
        EXPECT_DOUBLE_EQ(place->second.style.color.blue, static_cast<double>((color >> 16) & 0xFF) / 255);
    }
    EXPECT_EQ(compared, 41U);
    // The red sections of the two halves of the housing and of the two ring gears.
    EXPECT_EQ(std::count_if(instances.begin(), instances.end(),
                            [](auto const& entry) { return entry.second.paintedTriangles > 0; }),
              4);
}

} // namespace
