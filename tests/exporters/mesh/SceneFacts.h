#pragma once

#include "exporters/ModelFacts.h"

#include <assimp/scene.h>

#include <algorithm>
#include <functional>

namespace orvtest
{

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

} // namespace orvtest
