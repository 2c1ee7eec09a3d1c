#pragma once

#include "feed/Feed.h"

#include <string>
#include <vector>

/// Reads the answer to a feed request: an array whose elements carry each record as a JSON text of its own.
class FeedReader
{
public:
    virtual ~FeedReader() = default;

    /// The records in the array's order. Text that isn't JSON, or a root without elements, gives none; an element whose
    /// "Content" isn't JSON is left out. Throws the JSON library's exceptions where a value is of the wrong kind.
    std::vector<Feed> read(std::wstring const& response) const;
};
