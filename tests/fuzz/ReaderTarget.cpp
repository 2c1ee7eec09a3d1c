#include "feed/FeedReader.h"
#include "fuzz/Check.h"
#include "fuzz/Reference.h"
#include "fuzz/RoundTrip.h"
#include "fuzz/Targets.h"
#include "platform/text/Text.h"

#include <json/json.h>

#include <string>
#include <vector>

namespace orvfuzz
{

namespace
{

/// The document between two others, in one array.
std::wstring threeRecords(std::string const& document)
{
    std::wstring const before = responseOf(R"({"source":"first"})");
    std::wstring const between = responseOf(document, L"outer");
    std::wstring const after = responseOf(R"({"source":"last"})");
    auto const element = [](std::wstring const& response) { return response.substr(1, response.rfind(L']') - 1); };
    return L"[" + element(before) + L"," + element(between) + L"," + element(after) + L"]";
}

std::wstring responseFrom(char kind, std::string const& bytes)
{
    switch (kind % 4) {
    case 0:
        return orvtext::widenBytes(bytes);
    case 1:
        return orvtext::fromUtf8(bytes);
    case 2:
        return responseOf(bytes);
    default:
        return threeRecords(bytes);
    }
}

/// What comes of reading: records, or the words of the library's exception.
struct Outcome {
    std::vector<Feed> feeds;
    std::string refusal;
};

template <class Read>
Outcome outcomeOf(Read read)
{
    Outcome outcome;
    try {
        outcome.feeds = read();
    } catch (Json::Exception const& exception) {
        // The library's own, for a value of the wrong kind; nothing else may come out.
        outcome.refusal = exception.what();
        check(!outcome.refusal.empty(), "a refusal says why");
    }
    return outcome;
}

void checkSame(Outcome const& a, Outcome const& b)
{
    check(a.refusal == b.refusal, "what the plain reader refuses is refused, in the same words");
    check(a.feeds.size() == b.feeds.size(), "as many records come as the plain reader gives");
    for (std::size_t i = 0; i < a.feeds.size(); ++i) {
        check(isSame(a.feeds[i], b.feeds[i]), "records are the plain reader's, bit for bit");
    }
}

void checkNeighbours(std::vector<Feed> const& feeds)
{
    check(feeds.size() == 2 || feeds.size() == 3, "the neighbours of any record are read");
    check(feeds.front().source == L"first" && feeds.back().source == L"last", "records keep their order");
    if (feeds.size() == 3) {
        check(!feeds[1].thumbnail.empty(), "the thumbnail beside a document stands in for its own");
    }
}

} // namespace

void fuzzReader(Input input)
{
    if (input.empty()) {
        return;
    }
    char const kind = static_cast<char>(input[0] & 0x7FU);
    std::wstring const response = responseFrom(kind, std::string(input.begin() + 1, input.end()));
    Outcome const outcome = outcomeOf([&response] { return FeedReader().read(response); });
    checkSame(outcome, outcomeOf([&response] { return referenceRead(response); }));
    if (!outcome.refusal.empty()) {
        return;
    }
    if (kind % 4 == 3) {
        checkNeighbours(outcome.feeds);
    }
    for (Feed const& feed : outcome.feeds) {
        checkRoundTrip(feed);
    }
}

} // namespace orvfuzz
