#pragma once

#include "feed/Feed.h"
#include "feed/SceneRecords.h"

/// The camera as it stands, with a zoom of 1 whatever it shows. Zeros where the document has no camera.
FeedViewport captureViewport(SceneRecords const& records);

/// The nodes' states: colours, transparency, visibility and placements, at a cost of one pass over the nodes. What a
/// missing record would tell stays empty. The scene is only read.
FeedObjects captureObjects(SceneRecords& records);
