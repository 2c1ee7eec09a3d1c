#include "fuzz/RoundTrip.h"

#include "feed/FeedReader.h"
#include "feed/FeedWriter.h"
#include "fuzz/Check.h"
#include "fuzz/Reference.h"
#include "platform/text/Text.h"
#include "service/JsonText.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>

namespace orvfuzz
{

namespace
{

template <std::size_t N>
bool isSame(orvmath::Tuple<float, N> const& a, orvmath::Tuple<float, N> const& b)
{
    for (unsigned char i = 0; i < N; ++i) {
        if (std::bit_cast<std::uint32_t>(a[i]) != std::bit_cast<std::uint32_t>(b[i])) {
            return false;
        }
    }
    return true;
}

bool isSame(FeedViewport const& a, FeedViewport const& b)
{
    return isSame(a.eye, b.eye) && isSame(a.target, b.target) && isSame(a.up, b.up) &&
           std::bit_cast<std::uint64_t>(a.zoom) == std::bit_cast<std::uint64_t>(b.zoom);
}

bool isSame(FeedObjects const& a, FeedObjects const& b)
{
    return a.transparent == b.transparent && a.hidden == b.hidden && a.nodecolor == b.nodecolor &&
           std::equal(a.colored.begin(), a.colored.end(), b.colored.begin(), b.colored.end(),
                      [](auto const& x, auto const& y) { return isSame(x, y); }) &&
           std::equal(a.nodetransform.begin(), a.nodetransform.end(), b.nodetransform.begin(), b.nodetransform.end(),
                      [](auto const& x, auto const& y) { return x.first == y.first && isSame(x.second, y.second); });
}

/// Calls `see` with each number of the record that is written with a fraction.
template <class See>
void forEachNumber(Feed const& feed, See see)
{
    auto const seeAll = [&see](auto const& tuple, unsigned char count) {
        for (unsigned char i = 0; i < count; ++i) {
            see(static_cast<double>(tuple[i]));
        }
    };
    FeedViewport const& viewport = feed.comment.viewport;
    for (Vector3 const* vector : {&viewport.eye, &viewport.target, &viewport.up}) {
        seeAll(*vector, 3);
    }
    see(viewport.zoom);
    for (auto const& [node, matrix] : feed.comment.objects.nodetransform) {
        seeAll(matrix, 16);
    }
}

template <class Use>
void forEachText(Feed& feed, Use use)
{
    for (std::wstring* text :
         {&feed.author.id, &feed.author.name, &feed.author.email, &feed.file.id, &feed.file.name, &feed.action.type,
          &feed.action.value, &feed.comment.id, &feed.comment.commentType, &feed.comment.content,
          &feed.comment.publishedTime, &feed.comment.updatedTime, &feed.source, &feed.thumbnail}) {
        use(*text);
    }
}

/// A text as it comes back: no lone surrogates, "[]" in place of "null", an end at the first NUL.
std::wstring textThatReturns(std::wstring text)
{
    for (wchar_t& character : text) {
        auto const code = static_cast<std::uint32_t>(character);
        if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
            character = static_cast<wchar_t>(0xFFFD);
        }
    }
    for (std::size_t at = text.find(L"null"); at != std::wstring::npos; at = text.find(L"null", at + 2)) {
        text.replace(at, 4, L"[]");
    }
    return text.substr(0, text.find(L'\0'));
}

struct Expectation {
    bool isDropped = false; ///< the text is none that a reader takes
    bool isRefused = false; ///< the reader raises the library's exception
    Feed feed;
};

Expectation expectationOf(Feed const& feed)
{
    Expectation expectation;
    forEachNumber(feed, [&expectation](double number) {
        expectation.isDropped = expectation.isDropped || std::isinf(number);
        expectation.isRefused = expectation.isRefused || std::isnan(number);
    });
    expectation.feed = feed;
    expectation.feed.comment.objects.colored.clear();
    forEachText(expectation.feed, [&expectation](std::wstring& text) {
        // A line feed is written as "\n", whose letter makes the word with these three.
        expectation.isDropped = expectation.isDropped || text.find(L"\null") != std::wstring::npos;
        text = textThatReturns(text);
    });
    return expectation;
}

std::string checkedTextOf(Feed const& feed)
{
    std::wstring const text = FeedWriter().write(feed);
    check(text == referenceWrite(feed), "the text is the JSON library's, byte for byte");
    check(std::all_of(text.begin(), text.end(), [](wchar_t c) { return c > 0 && c < 0x80; }), "written text is ASCII");
    check(text.find(L'\n') == text.size() - 1, "written text has one line feed, at its end");
    check(text.find(L"null") == std::wstring::npos, "written text is free of the word null");
    return orvtext::toUtf8(text);
}

} // namespace

std::wstring responseOf(std::string const& document, std::wstring const& outerThumbnail)
{
    Json::Value root(Json::arrayValue);
    root[0U]["Content"] = document;
    root[0U]["Thumbnail"] = orvtext::toUtf8(outerThumbnail);
    return orvtext::fromUtf8(writeJson(root));
}

bool isSame(Feed const& a, Feed const& b)
{
    FeedComment const& one = a.comment;
    FeedComment const& other = b.comment;
    return a.author == b.author && a.file == b.file && a.action == b.action && a.source == b.source &&
           a.thumbnail == b.thumbnail && one.id == other.id && one.commentType == other.commentType &&
           one.content == other.content && one.publishedTime == other.publishedTime &&
           one.updatedTime == other.updatedTime && isSame(one.viewport, other.viewport) &&
           isSame(one.objects, other.objects);
}

void checkRoundTrip(Feed const& feed)
{
    Expectation const expectation = expectationOf(feed);
    std::wstring const response = responseOf(checkedTextOf(feed));
    try {
        auto const feeds = FeedReader().read(response);
        if (expectation.isDropped) {
            check(feeds.empty(), "a record that no reader takes is left out");
            return;
        }
        check(!expectation.isRefused, "a record with a NaN is refused");
        check(feeds.size() == 1, "one record comes back");
        check(isSame(feeds[0], expectation.feed), "a record comes back bit for bit");
    } catch (Json::Exception const&) {
        check(expectation.isRefused && !expectation.isDropped, "a record is refused for a NaN alone");
    }
}

} // namespace orvfuzz
