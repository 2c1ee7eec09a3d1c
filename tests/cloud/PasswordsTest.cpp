#include "cloud/accounts/Passwords.h"

#include "cloud/base/Secret.h"

#include <gtest/gtest.h>

using namespace orvcloud;

namespace
{
constexpr HashCost cheap{1, 8192};
}

TEST(Passwords, KnowTheirOwn)
{
    prepareSecrets();
    const Passwords passwords(cheap);
    const std::string hash = passwords.hash("correct horse");
    EXPECT_TRUE(passwords.matches(hash, "correct horse"));
    EXPECT_FALSE(passwords.matches(hash, "correct horse "));
    EXPECT_FALSE(passwords.matches("", "correct horse"));
    EXPECT_FALSE(passwords.matchesNobody("correct horse"));
    EXPECT_NE(hash, passwords.hash("correct horse")) << "every hash has a salt of its own";
}

TEST(Passwords, AreHashedAtTheGivenCost)
{
    prepareSecrets();
    EXPECT_TRUE(Passwords(cheap).hash("x").starts_with("$argon2id$v=19$m=8,t=1,p=1$"));
    EXPECT_EQ(HashCost().passes, 2U);
    EXPECT_EQ(HashCost().memoryBytes, 64U << 20);
}

TEST(Passwords, AreOutdatedWhenTheCostRises)
{
    prepareSecrets();
    const std::string hash = Passwords(cheap).hash("x");
    EXPECT_FALSE(Passwords(cheap).isOutdated(hash));
    EXPECT_TRUE(Passwords({2, 8192}).isOutdated(hash));
    EXPECT_TRUE(Passwords({1, 16384}).isOutdated(hash));
    EXPECT_FALSE(Passwords(cheap).isOutdated(Passwords({2, 16384}).hash("x")));
    EXPECT_TRUE(Passwords(cheap).isOutdated("$another$"));
}
