#include "cloud/accounts/Throttle.h"

#include <gtest/gtest.h>

using namespace orvcloud;

namespace
{
struct ThrottleTest : ::testing::Test {
    std::int64_t now = 1'000'000;
    Throttle throttle{[this] { return now; }};

    void failTimes(int count, const std::string& account, const std::string& address)
    {
        for (int i = 0; i < count; ++i) {
            const std::int64_t wait = throttle.begin(account, address, false);
            now += wait;
            if (wait > 0) {
                ASSERT_EQ(throttle.begin(account, address, false), 0);
            }
        }
    }
};
} // namespace

TEST_F(ThrottleTest, FiveAttemptsAreFree)
{
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(throttle.begin("ann", "1.1.1.1", false), 0);
    EXPECT_EQ(throttle.begin("ann", "1.1.1.1", false), 2);
    EXPECT_EQ(throttle.begin("ANN", "1.1.1.1", false), 2) << "the address's case makes no other account";
    EXPECT_EQ(throttle.begin("bob", "1.1.1.1", false), 0);
    EXPECT_EQ(throttle.begin("ann", "2.2.2.2", false), 0);
}

TEST_F(ThrottleTest, WaitsDoubleUpToAQuarterOfAnHour)
{
    failTimes(5, "ann", "1.1.1.1");
    for (const std::int64_t expected : {2, 4, 8, 16, 32, 64, 128, 256, 512, 900, 900}) {
        EXPECT_EQ(throttle.begin("ann", "1.1.1.1", true), expected);
        now += expected - 1;
        EXPECT_EQ(throttle.begin("ann", "1.1.1.1", true), 1);
        now += 1;
        EXPECT_EQ(throttle.begin("ann", "1.1.1.1", true), 0);
    }
}

TEST_F(ThrottleTest, ASuccessClearsTheAccount)
{
    failTimes(5, "ann", "1.1.1.1");
    throttle.succeeded("ann", "1.1.1.1");
    EXPECT_EQ(throttle.begin("ann", "1.1.1.1", false), 0);
}

TEST_F(ThrottleTest, AnAddressThatTriesManyAccountsIsSlowedDown)
{
    for (int i = 0; i < 20; ++i)
        ASSERT_EQ(throttle.begin("user" + std::to_string(i), "1.1.1.1", false), 0);
    EXPECT_GT(throttle.begin("another", "1.1.1.1", false), 0);
    EXPECT_EQ(throttle.begin("another", "2.2.2.2", false), 0);
}

TEST_F(ThrottleTest, AProxysAddressIsntSlowedDownAsSuch)
{
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(throttle.begin("user" + std::to_string(i), "127.0.0.1", true), 0);
}

TEST_F(ThrottleTest, AnAccountTriedFromManyAddressesIsSlowedDown)
{
    for (int i = 0; i < 50; ++i)
        ASSERT_EQ(throttle.begin("ann", "10.0.0." + std::to_string(i), false), 0);
    EXPECT_GT(throttle.begin("ann", "10.0.1.1", false), 0);
}

TEST_F(ThrottleTest, ADayForgets)
{
    failTimes(10, "ann", "1.1.1.1");
    now += 24 * 3600 + 1;
    EXPECT_EQ(throttle.begin("ann", "1.1.1.1", false), 0);
    EXPECT_EQ(throttle.begin("ann", "1.1.1.1", false), 0) << "the count begins anew";
}
