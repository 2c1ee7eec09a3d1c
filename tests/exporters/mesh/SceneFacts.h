#pragma once

#include "host/orv/IDocument.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"

#include <assimp/scene.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>

namespace orvtest
{

/// What a model and a file of it have to have in common.
struct Facts {
    std::size_t parts = 0;
    std::size_t triangles = 0;
    std::array<double, 3> minimum{1e30, 1e30, 1e30};
    std::array<double, 3> maximum{-1e30, -1e30, -1e30};

    void add(double x, double y, double z)
    {
        double const point[3] = {x, y, z};
        for (std::size_t i = 0; i < 3; ++i) {
            minimum[i] = std::min(minimum[i], point[i]);
            maximum[i] = std::max(maximum[i], point[i]);
        }
    }
};

/// Of the scene as it stands, hidden parts too.
inline Facts factsOf(std::shared_ptr<orv::IDocument> const& document)
{
    Facts facts;
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(document);
    orvsgutils::SceneQuery const query(document);
    for (int node = 0; node < query.nodeCount(); ++node) {
        int const index = topology->nodes.getValue(node).mesh;
        if (index < 0) {
            continue;
        }
        auto const& mesh = *resources->meshes[static_cast<std::size_t>(index)];
        auto const m = query.worldMatrix(node);
        ++facts.parts;
        facts.triangles += mesh.triangles.size() / 3;
        for (std::size_t i = 0; i < mesh.positions.size(); i += 3) {
            auto const* const p = &mesh.positions[i];
            facts.add(m[0] * p[0] + m[4] * p[1] + m[8] * p[2] + m[12], m[1] * p[0] + m[5] * p[1] + m[9] * p[2] + m[13],
                      m[2] * p[0] + m[6] * p[1] + m[10] * p[2] + m[14]);
        }
    }
    return facts;
}

inline bool hasMeshes(aiNode const& node)
{
    return node.mNumMeshes > 0 || std::any_of(node.mChildren, node.mChildren + node.mNumChildren,
                                              [](aiNode const* child) { return hasMeshes(*child); });
}

/// Of a file as Assimp reads it: a part is what hangs directly below the model.
inline Facts factsOf(aiScene const& scene)
{
    Facts facts;
    std::function<void(aiNode const&, aiMatrix4x4 const&)> const walk = [&](aiNode const& node,
                                                                            aiMatrix4x4 const& above) {
        aiMatrix4x4 const world = above * node.mTransformation;
        for (unsigned i = 0; i < node.mNumMeshes; ++i) {
            aiMesh const& mesh = *scene.mMeshes[node.mMeshes[i]];
            facts.triangles += mesh.mNumFaces;
            for (unsigned v = 0; v < mesh.mNumVertices; ++v) {
                aiVector3D const p = world * mesh.mVertices[v];
                facts.add(p.x, p.y, p.z);
            }
        }
        for (unsigned i = 0; i < node.mNumChildren; ++i) {
            walk(*node.mChildren[i], world);
        }
    };
    // A root that turns the model to the reader's own axes is no part of the file.
    aiMatrix4x4 back = scene.mRootNode->mTransformation;
    walk(*scene.mRootNode, back.Inverse());
    aiNode const* const model = scene.mRootNode->FindNode("model");
    aiNode const* const top = model != nullptr ? model : scene.mRootNode;
    facts.parts = top->mNumMeshes > 0 ? 1 : 0;
    for (unsigned i = 0; i < top->mNumChildren; ++i) {
        facts.parts += hasMeshes(*top->mChildren[i]) ? 1 : 0;
    }
    return facts;
}

inline void expectSameBox(Facts const& a, Facts const& b, double tolerance)
{
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(a.minimum[i], b.minimum[i], tolerance);
        EXPECT_NEAR(a.maximum[i], b.maximum[i], tolerance);
    }
}

} // namespace orvtest
