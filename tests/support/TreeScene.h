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
#include "host/orvsgutils/MaterialUtils.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace orvtest
{

/// The parts of a scene's nodes that are in a state, 0 to 1.
struct Shares {
    double hidden = 0.10;
    double colored = 0.05;
    double transparent = 0.05;
    double moved = 0.01;
};

/// An assembly of any size with a random tree, random placements and a box for each part. The same seed gives the same
/// scene; numbers are drawn from the generator directly, so that every standard library gives the same ones.
class TreeScene
{
public:
    TreeScene(int nodeCount, std::uint32_t seed) : random(seed)
    {
        std::vector<int> branch;
        for (int node = 0; node < nodeCount; ++node) {
            while (branch.size() > 1 && (branch.size() >= deepest || below(3) == 0)) {
                branch.pop_back();
            }
            addNode(node, branch.empty() ? -1 : branch.back());
            branch.push_back(node);
        }
        resources->initialTransforms = resources->transforms;
        runtime->visibility.assign(topology->nodes.size(), true);
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

    /// Changes the nodes' states further, each node by chance.
    void disturb(Shares const& shares = {})
    {
        for (int node = 0; node < nodeCount(); ++node) {
            if (happens(shares.hidden)) {
                runtime->visibility[static_cast<std::size_t>(node)] = below(8) == 0;
            }
            if (happens(shares.colored)) {
                orvsgutils::MaterialUtils::setNodeColor(node, below(8) == 0 ? 0 : random() & 0xFFFFFFU, resources,
                                                        runtime, topology);
            }
            if (happens(shares.transparent)) {
                orvsgutils::MaterialUtils::setNodeTransparency(node, fraction(), resources, runtime, topology);
            }
            if (happens(shares.moved)) {
                resources->transforms.setValue(topology->transformOfNode.getValue(node), placement());
            }
        }
    }

    int nodeCount() const { return static_cast<int>(topology->nodes.size()); }
    /// A number from 0 up to, and without, `end`.
    std::uint32_t below(std::uint32_t end) { return static_cast<std::uint32_t>(random()) % end; }
    bool happens(double chance) { return static_cast<double>(below(1000000)) < chance * 1e6; }
    float fraction() { return static_cast<float>(below(1U << 24U)) / static_cast<float>(1U << 24U); }

    std::mt19937 random;
    std::shared_ptr<orv::Document> document = std::make_shared<orv::Document>();
    std::shared_ptr<orvsg::SCSceneRT> runtime = std::make_shared<orvsg::SCSceneRT>();
    std::shared_ptr<orvgl::SCRenderer> renderer = std::make_shared<orvgl::SCRenderer>();
    std::shared_ptr<orvsg::SCPmi> pmi = std::make_shared<orvsg::SCPmi>();
    std::shared_ptr<orvsg::SCInfo> info = std::make_shared<orvsg::SCInfo>();
    std::shared_ptr<orvsg::SCSceneTopo> topology = std::make_shared<orvsg::SCSceneTopo>();
    std::shared_ptr<orvsg::SCSceneRes> resources = std::make_shared<orvsg::SCSceneRes>();
    std::shared_ptr<orv::SCApplication> application = std::make_shared<orv::SCApplication>();
    std::shared_ptr<orvsg::SCBom> bom = std::make_shared<orvsg::SCBom>();

private:
    static constexpr std::size_t deepest = 12;

    /// A turn about z, or none, and a shift.
    orvsg::Transform placement()
    {
        orvsg::Transform result;
        if (below(2) == 0) {
            float const t = fraction() * 2.0F - 1.0F; // the tangent of half the angle
            result.matrix[0] = result.matrix[5] = (1.0F - t * t) / (1.0F + t * t);
            result.matrix[1] = 2.0F * t / (1.0F + t * t);
            result.matrix[4] = -result.matrix[1];
        }
        for (unsigned char axis = 12; axis < 15; ++axis) {
            result.matrix[axis] = fraction() * 100.0F - 50.0F;
        }
        result.isSet = true;
        return result;
    }

    void addNode(int node, int parent)
    {
        orvsg::Node made;
        made.parent = parent;
        topology->nodes.append(std::move(made));
        topology->transformOfNode.append(node);
        orvsg::BBox box;
        if (below(4) != 0) {
            box.minimum = {-fraction(), -fraction(), -fraction()};
            box.maximum = {fraction(), fraction(), fraction()};
            box.isEmpty = false;
        }
        resources->boxes.append(box);
        resources->transforms.append(below(4) == 0 ? orvsg::Transform() : placement());
        orvsg::Material material;
        material.hasOwnColor = below(2) == 0;
        material.ownColor = random() & 0xFFFFFFU;
        resources->materials.append(material);
    }
};

} // namespace orvtest
