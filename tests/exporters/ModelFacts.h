#pragma once

#include "host/orv/IDocument.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvsgutils/SceneQuery.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
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

inline void expectSameBox(Facts const& a, Facts const& b, double tolerance)
{
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(a.minimum[i], b.minimum[i], tolerance);
        EXPECT_NEAR(a.maximum[i], b.maximum[i], tolerance);
    }
}

} // namespace orvtest
