#pragma once

#include "feed/Feed.h"

#include <string>
#include <string_view>

/// False where the record's thumbnail is too short to hold any image data behind its prefix.
bool hasThumbnail(Feed const& feed);

/// The bytes of the image file that the record's thumbnail carries, in whatever format the writer chose. Empty where
/// there is no payload; a payload with a stray character ends there. Whether the bytes are an image is for the caller
/// to find out.
std::string decodeThumbnail(Feed const& feed);

/// Standard base64 (RFC 4648, section 4). Decoding ends at the first "=" or other character outside the alphabet; of a
/// last group of k characters k - 1 bytes come out.
std::string decodeBase64(std::string_view text);
std::string encodeBase64(std::string_view bytes); ///< one line, padded with "="
