#pragma once

#include "host/orv/Document.h"
#include "host/orv/SCApplication.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCPmi.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>

namespace orvtest
{

/// A closed box with its corners at the origin and at (x, y, z), as one face a side.
inline std::shared_ptr<orvsg::Mesh const> boxMesh(float x, float y, float z)
{
    auto mesh = std::make_shared<orvsg::Mesh>();
    for (unsigned side = 0; side < 6; ++side) {
        unsigned const axis = side / 2;
        unsigned const u = (axis + 1) % 3;
        unsigned const v = (axis + 2) % 3;
        bool const isFar = side % 2 == 1;
        float const size[3] = {x, y, z};
        auto const first = static_cast<std::uint32_t>(mesh->positions.size() / 3);
        for (unsigned corner = 0; corner < 4; ++corner) {
            float point[3] = {0.0F, 0.0F, 0.0F};
            float normal[3] = {0.0F, 0.0F, 0.0F};
            point[axis] = isFar ? size[axis] : 0.0F;
            point[u] = corner == 1 || corner == 2 ? size[u] : 0.0F;
            point[v] = corner >= 2 ? size[v] : 0.0F;
            normal[axis] = isFar ? 1.0F : -1.0F;
            mesh->positions.insert(mesh->positions.end(), point, point + 3);
            mesh->normals.insert(mesh->normals.end(), normal, normal + 3);
        }
        std::uint32_t const a = first + (isFar ? 1U : 3U);
        std::uint32_t const b = first + (isFar ? 3U : 1U);
        for (std::uint32_t const index : {first, a, first + 2U, first, first + 2U, b}) {
            mesh->triangles.push_back(index);
        }
        mesh->faces.push_back({side * 2, 2, {}});
    }
    return mesh;
}

/// A small assembly in which every record is present:
///
///     0 gearbox            assembly, identity
///     1   housing          part, box 40 x 20 x 10, grey 0x808080 from the file
///     2   shaft assembly   assembly, moved by (10, 0, 0)
///     3     shaft          part, box 10 x 2 x 2, moved by (0, 5, 0), no colour of its own
///     4     gear           part, box 4 x 4 x 1, moved by (0, 0, 3), red 0x0000FF from the file
///     5     gear           another occurrence of the same part, moved by (0, 0, 6)
class TestScene
{
public:
    explicit TestScene(std::wstring file = L"/models/gearbox.step")
    {
        resources->meshes = {boxMesh(40, 20, 10), boxMesh(10, 2, 2), boxMesh(4, 4, 1)};
        addNode(L"gearbox", -1, -1, {}, {});
        addNode(L"housing", 0, 0, {}, {40, 20, 10});
        addNode(L"shaft assembly", 0, -1, {10, 0, 0}, {});
        addNode(L"shaft", 2, 1, {0, 5, 0}, {10, 2, 2});
        addNode(L"gear", 2, 2, {0, 0, 3}, {4, 4, 1});
        addNode(L"gear", 2, 2, {0, 0, 6}, {4, 4, 1});
        colorFromFile(1, 0x808080);
        colorFromFile(4, 0x0000FF);
        colorFromFile(5, 0x0000FF);
        resources->initialTransforms = resources->transforms;
        runtime->visibility.assign(topology->nodes.size(), true);
        info->setFile(std::move(file));
        info->documentKind = orvsg::SCInfo::assembly;

        document->setSchema(orvsg::SCSceneRT::key, runtime);
        document->setSchema(orvgl::SCRenderer::key, renderer);
        document->setSchema(orvsg::SCPmi::key, pmi);
        document->setSchema(orvsg::SCInfo::key, info);
        document->setSchema(orvsg::SCSceneTopo::key, topology);
        document->setSchema(orvsg::SCSceneRes::key, resources);
        document->setSchema(orv::SCApplication::key, application);
        document->setSchema(orvsg::SCBom::BOM, bom);
    }

    /// Places a node elsewhere, as the viewer's move command does.
    void moveTo(int node, float x, float y, float z)
    {
        int const index = topology->transformOfNode.getValue(node);
        resources->transforms.setValue(index, translation({x, y, z}));
    }

    std::shared_ptr<orv::Document> document = std::make_shared<orv::Document>();
    std::shared_ptr<orvsg::SCSceneRT> runtime = std::make_shared<orvsg::SCSceneRT>();
    std::shared_ptr<orvgl::SCRenderer> renderer = std::make_shared<orvgl::SCRenderer>();
    std::shared_ptr<orvsg::SCPmi> pmi = std::make_shared<orvsg::SCPmi>();
    std::shared_ptr<orvsg::SCInfo> info = std::make_shared<orvsg::SCInfo>();
    std::shared_ptr<orvsg::SCSceneTopo> topology = std::make_shared<orvsg::SCSceneTopo>();
    std::shared_ptr<orvsg::SCSceneRes> resources = std::make_shared<orvsg::SCSceneRes>();
    /// Its application is empty until a test sets one.
    std::shared_ptr<orv::SCApplication> application = std::make_shared<orv::SCApplication>();
    std::shared_ptr<orvsg::SCBom> bom = std::make_shared<orvsg::SCBom>();

private:
    using Point = orvmath::Tuple<float, 3>;

    static orvsg::Transform translation(Point const& offset)
    {
        orvsg::Transform placement;
        for (unsigned char axis = 0; axis < 3; ++axis) {
            placement.matrix[static_cast<unsigned char>(12 + axis)] = offset[axis];
        }
        placement.isSet = !(placement == orvsg::Transform());
        return placement;
    }

    void addNode(std::wstring name, int parent, int mesh, Point const& offset, Point const& size)
    {
        auto const number = static_cast<int>(topology->nodes.size());
        orvsg::Node node;
        node.name = std::move(name);
        node.parent = parent;
        node.mesh = mesh;
        topology->nodes.append(std::move(node));
        topology->transformOfNode.append(number);
        if (topology->nodes.contains(parent)) {
            orvsg::Node above = topology->nodes.getValue(parent);
            above.children.push_back(number);
            topology->nodes.setValue(parent, above);
        }
        orvsg::BBox box;
        if (mesh >= 0) {
            box.minimum = {};
            box.maximum = size;
            box.isEmpty = false;
        }
        resources->boxes.append(box);
        resources->transforms.append(translation(offset));
        resources->materials.append({});
    }

    void colorFromFile(int node, unsigned long color)
    {
        orvsg::Material material;
        material.hasOwnColor = true;
        material.ownColor = color;
        resources->materials.setValue(node, material);
    }
};

} // namespace orvtest
