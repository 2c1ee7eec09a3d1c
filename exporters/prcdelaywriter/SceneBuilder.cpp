#include "exporters/prcdelaywriter/SceneBuilder.h"

#include "exporters/prcdelaywriter/MeshBuilder.h"
#include "host/orv/FilePath.h"
#include "host/orv/IDocument.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"
#include "host/orvsgutils/TreeWalk.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>
#include <vector>

namespace prcdelay
{

namespace
{

class Builder
{
public:
    Builder(std::shared_ptr<orv::IDocument> const& document, double millimetresPerUnit)
        : resources(orv::recordOf<orvsg::SCSceneRes>(document)), topology(orv::recordOf<orvsg::SCSceneTopo>(document)),
          runtime(orv::recordOf<orvsg::SCSceneRT>(document)), info(orv::recordOf<orvsg::SCInfo>(document)),
          query(resources, topology, runtime), scale(1 / millimetresPerUnit)
    {
        scene.unit = millimetresPerUnit;
    }

    std::optional<prc::Scene> build()
    {
        if (!resources || !topology || topology->nodes.size() == 0)
            return {};
        int const count = static_cast<int>(topology->nodes.size());
        std::vector<std::optional<std::size_t>> partOfNode;
        for (int node = 0; node < count; ++node)
            partOfNode.push_back(partOf(node));
        addPrototypes(partOfNode);
        addTree(partOfNode);
        std::wstring const file = info ? orv::FilePath(info->file()).getFName() : std::wstring();
        scene.name = file.empty() ? nameOf(0) : orvtext::toUtf8(file);
        return std::move(scene);
    }

private:
    std::string nameOf(int node) const { return orvtext::toUtf8(topology->nodes.getValue(node).name); }

    std::size_t styleOf(unsigned long color, std::uint8_t opacity)
    {
        auto const [entry, isNew] = styles.try_emplace({color & 0xFFFFFF, opacity}, scene.styles.size());
        if (isNew) {
            auto const part = [color](int shift) { return static_cast<double>((color >> shift) & 0xFF) / 255; };
            scene.styles.push_back({{part(0), part(8), part(16)}, opacity});
        }
        return entry->second;
    }

    std::uint8_t opacityOf(int node) const
    {
        return static_cast<std::uint8_t>(std::lround((1 - query.transparency(node)) * 255));
    }

    // The mesh as it looks in a node. The user's colour covers those of single faces; the faces carry the transparency.
    std::size_t meshOf(int index, bool coloredByUser, std::uint8_t opacity)
    {
        orvsg::Mesh const& mesh = *resources->meshes[static_cast<std::size_t>(index)];
        bool const ownFaces = !coloredByUser && std::any_of(mesh.faces.begin(), mesh.faces.end(),
                                                            [](auto const& face) { return face.color.has_value(); });
        auto const [entry, isNew] =
            meshes.try_emplace({index, ownFaces ? opacity : std::optional<std::uint8_t>()}, scene.meshes.size());
        if (isNew)
            scene.meshes.push_back(buildMesh(mesh, scale, [&](unsigned long color) -> std::optional<std::size_t> {
                return ownFaces ? std::optional(styleOf(color, opacity)) : std::nullopt;
            }));
        return entry->second;
    }

    std::optional<std::size_t> partOf(int node)
    {
        int const index = topology->nodes.getValue(node).mesh;
        if (index < 0 || static_cast<std::size_t>(index) >= resources->meshes.size() ||
            !resources->meshes[static_cast<std::size_t>(index)])
            return {};
        std::uint8_t const opacity = opacityOf(node);
        std::size_t const style = styleOf(query.color(node), opacity);
        std::size_t const mesh = meshOf(index, query.isColoredByUser(node), opacity);
        auto const [entry, isNew] = parts.try_emplace({mesh, style}, scene.parts.size());
        if (isNew) {
            std::string const name = nameOf(node);
            scene.parts.push_back({name, {}, {{name, mesh, style, false, false}}});
        }
        return entry->second;
    }

    // A part that stands in several places gets an occurrence outside the tree, of which the places are instances.
    void addPrototypes(std::vector<std::optional<std::size_t>> const& partOfNode)
    {
        std::vector<std::size_t> uses(scene.parts.size());
        for (auto const& part : partOfNode)
            if (part)
                ++uses[*part];
        prototypes.resize(scene.parts.size());
        for (std::size_t part = 0; part < uses.size(); ++part)
            if (uses[part] > 1) {
                prototypes[part] = scene.occurrences.size();
                scene.occurrences.push_back({scene.parts[part].name, {}, part, {}, {}, prc::identity, false});
            }
    }

    void setGeometry(prc::Occurrence& occurrence, std::size_t part) const
    {
        if (prototypes[part])
            occurrence.prototype = prototypes[part];
        else
            occurrence.part = part;
    }

    // Nodes in reverse: a parent stands before its children in the document and behind them in the file.
    void addTree(std::vector<std::optional<std::size_t>> const& partOfNode)
    {
        std::size_t const count = partOfNode.size();
        std::vector<std::vector<std::size_t>> childrenOf(count);
        for (std::size_t i = count; i-- > 0;) {
            int const node = static_cast<int>(i);
            prc::Occurrence occurrence;
            occurrence.name = nameOf(node);
            occurrence.placement = placementOf(node);
            // Whether a hidden parent hides its children is up to the reader: they say it themselves.
            occurrence.hidden = runtime && !query.isShown(node);
            occurrence.children.assign(childrenOf[i].rbegin(), childrenOf[i].rend());
            if (partOfNode[i] && occurrence.children.empty()) {
                setGeometry(occurrence, *partOfNode[i]);
            } else if (partOfNode[i]) {
                // A node is an assembly or an instance, so geometry of an assembly's own hangs below it.
                prc::Occurrence own{occurrence.name, {}, {}, {}, {}, prc::identity, occurrence.hidden};
                setGeometry(own, *partOfNode[i]);
                occurrence.children.insert(occurrence.children.begin(), scene.occurrences.size());
                scene.occurrences.push_back(own);
            }
            scene.root = scene.occurrences.size();
            if (node > 0)
                childrenOf[static_cast<std::size_t>(std::max(0, orvsgutils::parentOf(*topology, node)))].push_back(
                    scene.root);
            scene.occurrences.push_back(std::move(occurrence));
        }
    }

    prc::Matrix placementOf(int node) const
    {
        auto const& transform = resources->transforms.getValue(topology->transformOfNode.getValue(node));
        if (!transform.isSet)
            return prc::identity;
        prc::Matrix matrix;
        for (std::size_t i = 0; i < matrix.size(); ++i) {
            matrix[i] = transform.matrix[static_cast<unsigned char>(i)];
            if (!std::isfinite(matrix[i]))
                return prc::identity;
            if (i == 12 || i == 13 || i == 14)
                matrix[i] *= scale;
        }
        return matrix;
    }

    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    std::shared_ptr<orvsg::SCInfo> info;
    orvsgutils::SceneQuery query;
    double scale;
    prc::Scene scene;
    std::map<std::pair<unsigned long, std::uint8_t>, std::size_t> styles;
    std::map<std::pair<int, std::optional<std::uint8_t>>, std::size_t> meshes;
    std::map<std::pair<std::size_t, std::size_t>, std::size_t> parts;
    std::vector<std::optional<std::size_t>> prototypes;
};

} // namespace

std::optional<prc::Scene> buildScene(std::shared_ptr<orv::IDocument> const& document, double millimetresPerUnit)
{
    return Builder(document, millimetresPerUnit).build();
}

} // namespace prcdelay
