#pragma once

#include "feed/Feed.h"
#include "feed/SceneRecords.h"
#include "host/orv/IDocument.h"

#include <memory>
#include <set>

/// Puts the scene into the state that the record describes, starting from a full reset, and tells all views by hint 20.
/// Records that the document lacks are passed over; node numbers outside the model have no effect. An empty document
/// does nothing.
void restoreView(std::shared_ptr<orv::IDocument> const& document, Feed const& feed);
/// The same with the document's records, which the caller has fetched.
void restoreView(std::shared_ptr<orv::IDocument> const& document, SceneRecords& records, Feed const& feed);

/// Puts every node back to its initial placement. The result holds all nodes, not the moved ones alone.
std::set<int> resetTransforms(SceneRecords& records);

/// Colours the nodes by `colored`, or by `nodecolor` where `colored` is empty.
void applyColors(FeedObjects const& objects, SceneRecords& records);

/// Moves the nodes of `nodetransform` and puts all others back. Without any it does nothing.
void applyTransforms(FeedObjects const& objects, SceneRecords& records);
