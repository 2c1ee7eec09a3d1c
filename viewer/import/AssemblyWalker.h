#pragma once

#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "viewer/scene/EdgeRecord.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <memory>
#include <string>

namespace orvviewer
{

/// The scene records of one model.
struct SceneRecords {
    std::shared_ptr<orvsg::SCSceneTopo> topology = std::make_shared<orvsg::SCSceneTopo>();
    std::shared_ptr<orvsg::SCSceneRes> resources = std::make_shared<orvsg::SCSceneRes>();
    std::shared_ptr<orvsg::SCSceneRT> runtime = std::make_shared<orvsg::SCSceneRT>();
    std::shared_ptr<EdgeRecord> edges = std::make_shared<EdgeRecord>();
};

/// Turns the assembly tree into nodes, one an occurrence, in depth-first order. Repeated parts share a mesh. Where the
/// file has several models at its top, a root named `rootName` holds them. Stops early when the progress asks to.
/// `ofStep`: a product that a STEP file describes by a solid and by surfaces or curves beside it is one part.
SceneRecords walkAssembly(Handle(TDocStd_Document) const& document, std::wstring const& rootName, bool ofStep,
                          Message_ProgressRange const& progress);

} // namespace orvviewer
