// An answer of 300 MiB, with the product's own limit on answers, on each of the eleven requests.

#include "tests/service/FaultTable.h"

#include "service/CloudHelper.h"
#include "service/FeedRequests.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

using orvtest::Answer;
using orvtest::Fault;
using orvtest::RequestRow;

namespace
{

constexpr std::size_t mebibyte = 1 << 20;

std::vector<Fault> largeFaults()
{
    return {
        {"Announced", Answer::large(300 * mebibyte)},
        {"Unannounced", Answer::largeUnannounced(300 * mebibyte)},
    };
}

/// The most memory that the process has held, in bytes.
std::size_t memoryPeak()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            return std::strtoul(line.c_str() + 6, nullptr, 10) * 1024;
        }
    }
    ADD_FAILURE() << "the system doesn't say how much memory was used";
    return 0;
}

void forgetMemoryPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

class LargeAnswers : public orvtest::FaultTable, public testing::WithParamInterface<std::tuple<RequestRow, Fault>>
{
};

TEST_P(LargeAnswers, AreCutAtTheLimitInFlatMemory)
{
    auto const& [request, fault] = GetParam();
    forgetMemoryPeak();
    std::size_t const before = memoryPeak();
    meet(request, fault);
    EXPECT_LT(memoryPeak() - before, 32 * mebibyte);
}

INSTANTIATE_TEST_SUITE_P(OfTheEleven, LargeAnswers,
                         testing::Combine(testing::ValuesIn(orvtest::elevenRequests()),
                                          testing::ValuesIn(largeFaults())),
                         [](auto const& cell) {
                             return std::string(std::get<0>(cell.param).name) + "_" + std::get<1>(cell.param).name;
                         });

class LargestAnswer : public orvtest::FaultTable
{
};

TEST_F(LargestAnswer, IsDeliveredWhole)
{
    // Beyond what is kept in memory while it comes in.
    std::string body;
    for (std::size_t i = 0; body.size() < 6 * mebibyte; ++i) {
        body += std::to_string(i) + ' ';
    }
    meet(orvtest::requestNamed("getFeed"), {"Large", Answer::ok(body), true, body});
}

TEST_F(LargestAnswer, TakesTheMemoryOfItsTextTwiceAndNoMore)
{
    // Wide text has four bytes a character, and the one who asks gets a copy of his own.
    std::size_t const length = 32 * mebibyte;
    forgetMemoryPeak();
    std::size_t const before = memoryPeak();
    service.expect("GET", "/api/CommentSync/", Answer::large(length));
    EXPECT_EQ(getFeed(L"ada@example.com", L"token", L"", L"job").size(), length);
    EXPECT_LT(memoryPeak() - before, 8 * length + 16 * mebibyte);
}

#if defined(__SANITIZE_ADDRESS__)
constexpr bool mayLimitMemory = false; // the sanitizer takes addresses by the terabyte
#else
constexpr bool mayLimitMemory = true;
#endif

/// So many bytes more than it has are all the memory that this process gets while this lives.
class MemoryLimit
{
public:
    explicit MemoryLimit(std::size_t room)
    {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        ::getrlimit(RLIMIT_AS, &before);
        rlimit const limit{pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) + room, before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_AS, &limit), 0);
    }
    ~MemoryLimit() { ::setrlimit(RLIMIT_AS, &before); }
    MemoryLimit(MemoryLimit const&) = delete;
    MemoryLimit& operator=(MemoryLimit const&) = delete;

private:
    rlimit before{};
};

TEST_F(LargestAnswer, ThatTheMemoryCantHoldIsAFailedRequest)
{
    if (!mayLimitMemory) {
        GTEST_SKIP() << "skipped: this build's memory can't be limited";
    }
    // Short of memory for the bytes, for the text of them, and for the copy of the text.
    std::size_t const length = 64 * mebibyte;
    for (std::size_t const room : {length / 2, 3 * length, 6 * length}) {
        service.expect("GET", "/api/CommentSync/", Answer::large(length));
        service.expect("POST", "/api/Upload/", Answer::large(length));
        std::wstring feed;
        std::wstring job;
        {
            MemoryLimit const limit(room);
            EXPECT_NO_THROW(feed = getFeed(L"ada@example.com", L"token", L"", L"job")) << room;
            EXPECT_NO_THROW(job = CloudHelper::upload(L"part.step", model(), L"ada@example.com", L"token", L"png"));
        }
        EXPECT_EQ(feed.size(), 0U) << room;
        EXPECT_EQ(job, CloudHelper::uploadFailed) << room;
    }
    service.expect("GET", "/api/CommentSync/", Answer::large(length));
    EXPECT_EQ(getFeed(L"ada@example.com", L"token", L"", L"job").size(), length) << "with enough of it all is well";
}

} // namespace
