#pragma once

#include "feed/Feed.h"

#include <string>

namespace orvfuzz
{

/// A response of one element with that document, in plain ASCII.
std::wstring responseOf(std::string const& document, std::wstring const& outerThumbnail = {});

/// Equal bit for bit: -0.0 differs from 0.0, and a NaN equals itself.
bool isSame(Feed const& a, Feed const& b);

/// Writes the record, reads the text back and checks that everything that should survive does and nothing else.
void checkRoundTrip(Feed const& feed);

} // namespace orvfuzz
