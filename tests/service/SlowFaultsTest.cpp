// What each of the eleven requests makes of a service that keeps it waiting.

#include "tests/service/FaultTable.h"

#include <string>
#include <tuple>
#include <vector>

using orvtest::Answer;
using orvtest::Fault;
using orvtest::RequestRow;

namespace
{

using namespace std::chrono_literals;

std::vector<Fault> slowFaults()
{
    return {
        {"SilenceBeforeTheAnswer", Answer::silence()},
        {"SilenceInMidHeader", Answer::raw("HTTP/1.1 200 OK\r\nContent-Le", false)},
        {"SilenceInMidBody", Answer::stall("h", 20)},
        {"TrickleBelowTheLimit", Answer::trickle("slower than a byte a second", 3s)},
    };
}

class SlowFaults : public orvtest::FaultTable, public testing::WithParamInterface<std::tuple<RequestRow, Fault>>
{
protected:
    SlowFaults() : FaultTable(shortLimits()) {}
};

TEST_P(SlowFaults, EndWithinTheLimits)
{
    auto const& [request, fault] = GetParam();
    meet(request, fault);
}

INSTANTIATE_TEST_SUITE_P(OfTheEleven, SlowFaults,
                         testing::Combine(testing::ValuesIn(orvtest::elevenRequests()),
                                          testing::ValuesIn(slowFaults())),
                         [](auto const& cell) {
                             return std::string(std::get<0>(cell.param).name) + "_" + std::get<1>(cell.param).name;
                         });

} // namespace
