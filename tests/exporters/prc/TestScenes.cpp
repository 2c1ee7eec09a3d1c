#include "exporters/prc/TestScenes.h"

#include "exporters/prc/Compression.h"
#include "exporters/prc/EntityTypes.h"

#include <cmath>

namespace prctest
{

prc::Mesh boxMesh(double x, double y, double z)
{
    prc::Mesh mesh;
    for (int corner = 0; corner < 8; ++corner)
        for (double const coordinate : {corner & 1 ? x : 0.0, corner & 2 ? y : 0.0, corner & 4 ? z : 0.0})
            mesh.points.push_back(coordinate);
    mesh.normals = {-1, 0, 0, 1, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, -1, 0, 0, 1};
    std::uint32_t const sides[6][4] = {{0, 4, 6, 2}, {1, 3, 7, 5}, {0, 1, 5, 4},
                                       {2, 6, 7, 3}, {0, 2, 3, 1}, {4, 5, 7, 6}};
    for (std::uint32_t side = 0; side < 6; ++side) {
        auto const& corners = sides[side];
        for (int const i : {0, 1, 2, 0, 2, 3}) {
            mesh.pointIndices.push_back(corners[i]);
            mesh.normalIndices.push_back(side);
        }
        mesh.faces.push_back({2, {}});
    }
    return mesh;
}

prc::Matrix placedAt(double x, double y, double z, double turn)
{
    double const c = std::cos(turn);
    double const s = std::sin(turn);
    return {c, s, 0, 0, -s, c, 0, 0, 0, 0, 1, 0, x, y, z, 1};
}

prc::Scene oneBox()
{
    prc::Scene scene;
    scene.name = "Box";
    scene.styles = {{{1, 0.5, 0}, 255}};
    scene.meshes = {boxMesh(10, 20, 30)};
    scene.parts = {{"Box", {}, {{"Body", 0, 0, true, false}}}};
    scene.occurrences.resize(1);
    scene.occurrences[0].name = "Box";
    scene.occurrences[0].part = 0;
    return scene;
}

prc::Scene assembly()
{
    prc::Scene scene;
    scene.name = "Prüfstand №1 – 試験";
    scene.styles = {{{0.8, 0.1, 0.1}, 255}, {{0.1, 0.3, 0.9}, 128}, {{0.8, 0.1, 0.1}, 0}};
    scene.meshes = {boxMesh(40, 20, 5), boxMesh(1, 1, 1)};
    scene.meshes[1].faces[2].styles = {1};
    scene.meshes[1].faces[4].styles = {0, 2};
    scene.parts = {
        {"Plate",
         {{"Info",
           {{"Material", "Steel"}, {"Mass", 0.031}, {"Revision", -3}, {"Made", prc::Time{1700000000}}, {"Empty", {}}}}},
         {{"Plate body", 0, 0, true, false}}},
        {"Cube", {}, {{"Cube body", 1, 1, false, false}, {"Marker", 1, {}, false, true}}}};

    scene.occurrences.resize(8);
    auto& list = scene.occurrences;
    list[0] = {"Plate prototype", {}, 0, {}, {}, prc::identity, false};
    list[1] = {"Plate 1", {}, {}, 0, {}, prc::identity, false};
    list[2] = {"Plate 2", {}, {}, 0, {}, placedAt(100.5, -20.25, 7, 0.5), false};
    list[3] = {"Cube moved", {}, 1, {}, {}, placedAt(20, 10, 5), false};
    list[4] = {"Cube mirrored 😀", {}, 1, {}, {}, {-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 3, 4, 5, 1}, true};
    list[5] = {"Cube enlarged", {}, 1, {}, {}, {0, 2.5, 0, 0, -2.5, 0, 0, 0, 0, 0, 2.5, 0, 1, 2, 3, 1}, false};
    list[6] = {"Pins", {}, {}, {}, {3, 4, 5}, placedAt(0, 0, 100), false};
    list[7] = {"Root", {{"Origin", {{"Source", "test"}}}}, {}, {}, {1, 2, 6}, prc::identity, false};
    scene.root = 7;
    return scene;
}

std::vector<std::uint8_t> sectionOf(std::span<std::uint8_t const> file, std::size_t section)
{
    // Offsets of the globals, tree, ... stand in the header, the model file's start and end after them.
    auto const offsetAt = [&](std::size_t position) {
        std::size_t value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value |= static_cast<std::size_t>(file[position + i]) << (8 * i);
        return value;
    };
    std::size_t const table = prc::startHeaderSize + 4 + 16 + 4 + 4 + 4;
    std::size_t const start = offsetAt(table + 4 * section);
    std::size_t const end = offsetAt(table + 4 * section + 4);
    return prc::decompressed(file.subspan(start, end - start), std::size_t{1} << 30);
}

} // namespace prctest
