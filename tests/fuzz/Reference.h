#pragma once

#include "feed/Feed.h"

#include <string>
#include <vector>

/// Reader and writer in their plainest form, value by value through the JSON library, however long that takes. The
/// product's own give the same records, the same texts and the same exceptions.
namespace orvfuzz
{

std::vector<Feed> referenceRead(std::wstring const& response);
std::wstring referenceWrite(Feed const& feed);

} // namespace orvfuzz
