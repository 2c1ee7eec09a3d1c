#pragma once

#include "feed/Feed.h"

#include <string>

/// Writes one record as the JSON text that the service stores and FeedReader reads back.
class FeedWriter
{
public:
    virtual ~FeedWriter() = default;

    /// One line of plain ASCII with one line feed at its end; members in ascending order of their names. `colored`
    /// isn't written: `nodecolor` says the same.
    std::wstring write(Feed const& feed) const;
};
