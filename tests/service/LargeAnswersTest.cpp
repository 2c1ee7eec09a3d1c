// An answer of 300 MiB, with the product's own limit on answers, on each of the eleven requests.

#include "tests/service/FaultTable.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

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

} // namespace
