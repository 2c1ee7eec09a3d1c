#pragma once

#include "cloud/store/Store.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvcloud
{

/// The entries that a new model's feed begins with, one for each output that a reader can have made of the model.
/// In the order in which they are stored, so the last one stands highest in the feed.
std::vector<FeedEntry> automaticEntries(std::string_view jobId, std::string_view fileName, std::int64_t now);

/// Puts a feed's answer together: a JSON array with an element for each record, in ASCII.
class FeedText
{
public:
    /// False if the record no longer fits into an answer, whose limit is 256 MiB for the client; then nothing is added.
    bool add(std::string_view record);
    /// The whole text. Once only.
    std::string finish();

private:
    std::string text = "[";
};

} // namespace orvcloud
