#include "exporters/meshwriters/MeshScene.h"

#include <assimp/material.h>
#include <assimp/scene.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <unordered_map>

namespace meshwriters
{

namespace
{

using orvexport::Look;
using orvexport::PlacedPart;

constexpr char const* rootName = "model";

/// At most `longest` bytes, cut between characters.
std::string shortened(std::string name, std::size_t longest)
{
    if (name.size() > longest) {
        std::size_t end = longest;
        while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80) {
            --end;
        }
        name.resize(end);
    }
    return name;
}

class Names
{
public:
    explicit Names(NameRules const& wanted) : rules(wanted) {}

    std::string unique(std::string const& wanted)
    {
        std::string const stem = withoutNumber(shortened(usable(wanted), rules.longest));
        std::string name = stem;
        for (int& number = counts[stem]; !used.insert(name).second;) {
            std::string const end = (rules.areNumbered ? '-' : '_') + std::to_string(++number + 1);
            name = shortened(stem, rules.longest - end.size()) + end;
        }
        return name;
    }

private:
    std::string usable(std::string name) const
    {
        for (char& c : name) {
            auto const code = static_cast<unsigned char>(c);
            if (code < 0x20 || code == 0x7F || (rules.isPlain && (c == ' ' || c == '\\'))) {
                c = '_';
            }
        }
        if (rules.isPlain && name.starts_with('#')) {
            name.front() = '_';
        }
        return name.empty() ? "part" : name;
    }

    /// "gear_2" could be the mesh 2 of the part "gear".
    std::string withoutNumber(std::string name) const
    {
        auto const last = name.find_last_not_of("0123456789");
        if (rules.areNumbered && last != std::string::npos && last + 1 < name.size() && name[last] == '_') {
            name[last] = '-';
        }
        return name;
    }

    NameRules rules;
    std::map<std::string, int> counts;
    std::set<std::string> used;
};

aiMaterial* makeMaterial(Look const& look)
{
    auto* const material = new aiMaterial;
    auto const part = [&look](int shift) { return static_cast<float>((look.color >> shift) & 0xFF) / 255.F; };
    aiColor4D const color(part(0), part(8), part(16), 1.F);
    float const opacity = 1.F - look.transparency;
    char name[16]; // short enough for the oldest of the formats
    std::snprintf(name, sizeof name, "c%02X%02X%02X_%02X", look.color & 0xFF, (look.color >> 8) & 0xFF,
                  (look.color >> 16) & 0xFF, static_cast<unsigned>(opacity * 255.F + 0.5F) & 0xFF);
    aiString const text(name);
    material->AddProperty(&text, AI_MATKEY_NAME);
    material->AddProperty(&color, 1, AI_MATKEY_COLOR_DIFFUSE);
    material->AddProperty(&color, 1, AI_MATKEY_COLOR_AMBIENT);
    material->AddProperty(&opacity, 1, AI_MATKEY_OPACITY);
    return material;
}

class Builder
{
public:
    explicit Builder(SceneOptions const& wanted) : options(wanted), names(wanted.names) {}

    std::unique_ptr<aiScene> build(std::vector<PlacedPart> const& parts)
    {
        auto scene = std::make_unique<aiScene>();
        scene->mRootNode = new aiNode(names.unique(rootName));
        scene->mRootNode->mChildren = new aiNode* [parts.size()] {};
        for (std::size_t i = 0; i < parts.size(); ++i) {
            auto* const node = addPart(parts[i]);
            node->mParent = scene->mRootNode;
            scene->mRootNode->mChildren[i] = node;
            scene->mRootNode->mNumChildren = static_cast<unsigned>(i + 1);
            if (options.progress) {
                options.progress(static_cast<double>(i + 1) / static_cast<double>(parts.size()));
            }
        }
        scene->mMeshes = new aiMesh*[meshes.size()];
        scene->mNumMeshes = static_cast<unsigned>(meshes.size());
        std::transform(meshes.begin(), meshes.end(), scene->mMeshes, [](auto& mesh) { return mesh.release(); });
        scene->mMaterials = new aiMaterial*[materials.size()];
        scene->mNumMaterials = static_cast<unsigned>(materials.size());
        std::transform(materials.begin(), materials.end(), scene->mMaterials,
                       [](auto& entry) { return entry.release(); });
        return scene;
    }

private:
    aiNode* addPart(PlacedPart const& part)
    {
        auto node = std::make_unique<aiNode>(names.unique(part.name));
        std::size_t const first = meshes.size();
        for (auto const& piece : part.pieces) {
            std::size_t done = 0;
            while (done < piece.triangles.size()) {
                done = addMesh(part, piece, done, *node);
            }
        }
        node->mNumMeshes = static_cast<unsigned>(meshes.size() - first);
        node->mMeshes = new unsigned[node->mNumMeshes];
        for (unsigned i = 0; i < node->mNumMeshes; ++i) {
            node->mMeshes[i] = static_cast<unsigned>(first) + i;
        }
        return node.release();
    }

    /// Takes corners from `next` on, as many as a mesh holds; returns the first that it left.
    std::size_t addMesh(PlacedPart const& part, orvexport::Piece const& piece, std::size_t next, aiNode const& node)
    {
        std::size_t const most = options.mostInMesh > 0 ? options.mostInMesh : std::numeric_limits<std::size_t>::max();
        std::vector<std::uint32_t> vertices;
        std::vector<unsigned> corners;
        std::unordered_map<std::uint32_t, unsigned> numbers;
        while (next < piece.triangles.size() && corners.size() / 3 < most) {
            auto const corner = piece.triangles.begin() + static_cast<std::ptrdiff_t>(next);
            auto const added =
                std::count_if(corner, corner + 3, [&](auto vertex) { return !numbers.contains(vertex); });
            if (vertices.size() + static_cast<std::size_t>(added) > most) {
                break;
            }
            for (int i = 0; i < 3; ++i) {
                auto const vertex = piece.triangles[next++];
                auto const [place, isNew] = numbers.try_emplace(vertex, static_cast<unsigned>(vertices.size()));
                if (isNew) {
                    vertices.push_back(vertex);
                }
                corners.push_back(place->second);
            }
        }
        auto mesh = std::make_unique<aiMesh>();
        if (!options.names.areNumbered) {
            mesh->mName = node.mName;
        }
        mesh->mPrimitiveTypes = aiPrimitiveType_TRIANGLE;
        mesh->mMaterialIndex = materialOf(piece.look);
        setVertices(part, vertices, *mesh);
        mesh->mNumFaces = static_cast<unsigned>(corners.size() / 3);
        mesh->mFaces = new aiFace[mesh->mNumFaces];
        for (unsigned face = 0; face < mesh->mNumFaces; ++face) {
            auto const* const corner = &corners[std::size_t{3} * face];
            mesh->mFaces[face].mNumIndices = 3;
            mesh->mFaces[face].mIndices =
                new unsigned[3]{corner[0], corner[part.turnsInsideOut ? 2 : 1], corner[part.turnsInsideOut ? 1 : 2]};
        }
        meshes.push_back(std::move(mesh));
        return next;
    }

    void setVertices(PlacedPart const& part, std::vector<std::uint32_t> const& vertices, aiMesh& mesh) const
    {
        auto const vector = [](std::array<double, 3> const& p, double factor) {
            return aiVector3D(static_cast<float>(p[0] * factor), static_cast<float>(p[1] * factor),
                              static_cast<float>(p[2] * factor));
        };
        mesh.mNumVertices = static_cast<unsigned>(vertices.size());
        mesh.mVertices = new aiVector3D[vertices.size()];
        bool const withNormals = part.mesh->normals.size() == part.mesh->positions.size();
        if (withNormals) {
            mesh.mNormals = new aiVector3D[vertices.size()];
        }
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            mesh.mVertices[i] = vector(worldPoint(part, vertices[i]), 1 / options.millimetresPerUnit);
            if (withNormals) {
                mesh.mNormals[i] = vector(worldNormal(part, vertices[i]), 1);
            }
        }
    }

    unsigned materialOf(Look const& look)
    {
        auto const [place, isNew] = materialOfLook.try_emplace(look, static_cast<unsigned>(materials.size()));
        if (isNew) {
            materials.emplace_back(makeMaterial(look));
        }
        return place->second;
    }

    SceneOptions const& options;
    Names names;
    std::vector<std::unique_ptr<aiMesh>> meshes;
    std::vector<std::unique_ptr<aiMaterial>> materials;
    std::map<Look, unsigned> materialOfLook;
};

} // namespace

std::unique_ptr<aiScene> makeScene(std::vector<PlacedPart> const& parts, SceneOptions const& options)
{
    return Builder(options).build(parts);
}

} // namespace meshwriters
