#pragma once

#include "feed/Feed.h"
#include "feed/FeedWriter.h"
#include "feed/Thumbnail.h"
#include "platform/text/Text.h"
#include "support/LittleEndian.h"

#include <json/json.h>

#include <string>
#include <vector>

namespace orvtest
{

/// A Windows bitmap of that size, white: a header of 54 bytes, then lines of blue, green and red from the lowest one
/// up, each filled up to whole groups of four bytes.
inline std::string pictureBytes(int width, int height)
{
    std::size_t const line = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    std::size_t const pixels = line * static_cast<std::size_t>(height);
    return "BM" + littleEndian(54 + pixels, 4) + littleEndian(0, 4) + littleEndian(54, 4) + littleEndian(40, 4) +
           littleEndian(static_cast<std::size_t>(width), 4) + littleEndian(static_cast<std::size_t>(height), 4) +
           littleEndian(1, 2) + littleEndian(24, 2) + littleEndian(0, 4) + littleEndian(pixels, 4) +
           littleEndian(0, 16) + std::string(pixels, '\xff');
}

inline std::wstring dataUri(std::string const& bytes)
{
    std::string const payload = encodeBase64(bytes);
    return L"data:image/jpeg;base64," + std::wstring(payload.begin(), payload.end());
}

inline Feed comment(std::wstring content, std::wstring author = L"Ann", std::wstring email = L"ann@example.com")
{
    Feed feed;
    feed.author = FeedAuthor(L"id", std::move(author), std::move(email), false, false);
    feed.file = FeedFile(L"0f8fad5b-d9cb-469f-a165-70867728950e", L"gearbox.step");
    feed.comment.id = L"c0ffee00-0000-4000-8000-000000000001";
    feed.comment.commentType = L"text";
    feed.comment.content = std::move(content);
    feed.comment.publishedTime = L"Nov 15, 2026 16:11 PM";
    feed.comment.viewport = FeedViewport({0, 0, 100}, {0, 0, 0}, {0, 1, 0}, 1.0);
    feed.action = FeedAction(L"view", L" ");
    feed.source = L"desktop";
    return feed;
}

/// The answer to a feed request with these records.
inline std::string feedJson(std::vector<Feed> const& feeds)
{
    Json::Value root(Json::arrayValue);
    for (Feed const& feed : feeds) {
        root[root.size()]["Content"] = orvtext::toUtf8(FeedWriter().write(feed));
    }
    return Json::writeString(Json::StreamWriterBuilder(), root);
}

/// One entry an author, newest first.
inline std::string feedJson(std::vector<std::string> const& authors)
{
    std::vector<Feed> feeds;
    for (auto const& author : authors) {
        feeds.push_back(comment(L"hello", orvtext::fromUtf8(author), L"x@example.com"));
    }
    return feedJson(feeds);
}

} // namespace orvtest
