#pragma once

#include "host/orv/IDocument.h"
#include "host/orv/SCApplication.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCPmi.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"

#include <memory>

/// The records of a document that a comment's view touches. Each is empty where the document has none.
struct SceneRecords {
    explicit SceneRecords(std::shared_ptr<orv::IDocument> const& document)
        : resources(orv::recordOf<orvsg::SCSceneRes>(document)), topology(orv::recordOf<orvsg::SCSceneTopo>(document)),
          pmi(orv::recordOf<orvsg::SCPmi>(document)), runtime(orv::recordOf<orvsg::SCSceneRT>(document)),
          info(orv::recordOf<orvsg::SCInfo>(document)), renderer(orv::recordOf<orvgl::SCRenderer>(document)),
          application(orv::recordOf<orv::SCApplication>(document)),
          bom(orv::recordOf<orvsg::SCBom>(document, orvsg::SCBom::BOM))
    {
    }

    /// The nodes' colours and placements can be read and changed.
    bool hasTree() const { return resources && topology; }

    std::shared_ptr<orvsg::SCSceneRes> resources;
    std::shared_ptr<orvsg::SCSceneTopo> topology;
    std::shared_ptr<orvsg::SCPmi> pmi;
    std::shared_ptr<orvsg::SCSceneRT> runtime;
    std::shared_ptr<orvsg::SCInfo> info;
    std::shared_ptr<orvgl::SCRenderer> renderer;
    std::shared_ptr<orv::SCApplication> application;
    std::shared_ptr<orvsg::SCBom> bom;
};
