#pragma once

#include "feed/Feed.h"
#include "host/orv/IDocument.h"
#include "host/orvweb/UserInfo.h"

#include <cstddef>
#include <ctime>
#include <memory>
#include <string>

/// Records what the user looks at: a picture of 256 by 256 pixels, the camera, and the nodes' states. `fileId` is the
/// model's id at the service; the picture is written to `imagePath`, replacing the one before. The scene is only read.
/// Records that the document lacks leave their fields empty.
Feed captureView(std::shared_ptr<orv::IDocument> const& document, orvweb::UserInfo const& user,
                 std::wstring const& text, std::wstring const& fileId, std::wstring const& imagePath);

/// Where the picture of the last comment lies in the user's "Cloud" directory.
std::wstring thumbnailPath();

/// A file's bytes as base64 on one line; empty where the file can't be opened.
std::wstring encodeFileBase64(std::wstring const& path);

/// The text of a local time as a record carries it, "Nov 15, 2026 16:11 PM". Empty where it doesn't fit in `room`
/// characters, the closing zero included.
std::wstring commentTimeText(std::tm const& local, std::size_t room = 128);
