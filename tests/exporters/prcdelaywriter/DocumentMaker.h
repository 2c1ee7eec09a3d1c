#pragma once

#include "host/orv/Document.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"

#include <memory>
#include <string>

/// Builds a document as the viewer does: nodes in depth-first order, each with its transform, material and visibility.
class DocumentMaker
{
public:
    static constexpr unsigned long grey = 0xB4B4B4;

    DocumentMaker();

    /// The number of the new mesh: one square of two triangles, the second a face of its own, in that colour if given.
    int addSquare(float size, std::optional<unsigned long> secondFaceColor = {});
    /// The number of the new node. The first has the parent -1.
    int addNode(std::wstring const& name, int parent, int mesh = -1);
    void move(int node, float x, float y, float z);
    void setMatrix(int node, orvmath::Tuple<float, 16> const& matrix);
    void setFileColor(int node, unsigned long color);
    void hide(int node) { runtime->visibility[static_cast<std::size_t>(node)] = false; }

    std::shared_ptr<orvsg::SCSceneRes> resources = std::make_shared<orvsg::SCSceneRes>();
    std::shared_ptr<orvsg::SCSceneTopo> topology = std::make_shared<orvsg::SCSceneTopo>();
    std::shared_ptr<orvsg::SCSceneRT> runtime = std::make_shared<orvsg::SCSceneRT>();
    std::shared_ptr<orvsg::SCInfo> info = std::make_shared<orvsg::SCInfo>();
    std::shared_ptr<orv::IDocument> document;
};
