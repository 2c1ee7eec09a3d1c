#include "exporters/prc/DoubleCodes.h"

#include <gtest/gtest.h>

#include <bit>
#include <fstream>
#include <sstream>
#include <string>

namespace
{

std::string bitsOf(prc::DoubleCode const& code)
{
    std::string text;
    for (int bit = code.length - 1; bit >= 0; --bit)
        text += (code.bits >> bit) & 1U ? '1' : '0';
    return text;
}

TEST(DoubleCodes, FrequentNumbersHaveShortCodes)
{
    EXPECT_EQ(bitsOf(prc::codeFor(0.0)), "01");
    EXPECT_EQ(bitsOf(prc::codeFor(1.0)), "0000");
    EXPECT_EQ(bitsOf(prc::codeFor(0.001)), "1111");
    EXPECT_EQ(bitsOf(prc::codeFor(0.002)), "10110");
    EXPECT_EQ(bitsOf(prc::codeForExponent(1022)), "1000");
    EXPECT_EQ(bitsOf(prc::codeForExponent(1023)), "10011");
    EXPECT_EQ(bitsOf(prc::codeForExponent(1024)), "11011");
    EXPECT_EQ(bitsOf(prc::codeForExponent(1025)), "10111");
}

TEST(DoubleCodes, EveryExponentIsFoundAgainFromItsCode)
{
    for (int exponent = 0; exponent < 2048; ++exponent) {
        auto const code = prc::codeForExponent(exponent);
        int const unused = prc::longestDoubleCode - code.length;
        std::uint32_t const first = code.bits << unused;
        for (std::uint32_t const next : {first, first | ((1U << unused) - 1)}) {
            auto const found = prc::codeAt(next);
            ASSERT_FALSE(found.isValue) << exponent;
            ASSERT_EQ(found.exponent, exponent);
            ASSERT_EQ(found.length, code.length);
        }
    }
}

TEST(DoubleCodes, EveryStreamStartsWithACode)
{
    for (std::uint32_t next = 0; next < 1U << prc::longestDoubleCode; next += 97) {
        auto const code = prc::codeAt(next);
        ASSERT_EQ(code.bits, next >> (prc::longestDoubleCode - code.length)) << next;
    }
}

TEST(DoubleCodes, AgreeWithThePublishedTable)
{
    std::ifstream table(ORV_SHARED_DIR "/reference/prc-double-codes.csv");
    if (!table)
        GTEST_SKIP() << "skipped: the table of codes is not there";
    std::string line;
    std::getline(table, line);
    int rows = 0;
    for (; std::getline(table, line); ++rows) {
        std::istringstream fields(line);
        std::string kind, length, bits, exponent, hex;
        for (auto* field : {&kind, &length, &bits, &exponent, &hex})
            std::getline(fields, *field, ',');
        auto const number = std::bit_cast<double>(static_cast<std::uint64_t>(std::stoull(hex, nullptr, 16)));
        auto const code = kind == "value" ? prc::codeFor(number) : prc::codeForExponent(std::stoi(exponent));
        ASSERT_EQ(bitsOf(code), bits) << line;
        ASSERT_EQ(code.length, std::stoi(length)) << line;
        ASSERT_EQ(code.isValue, kind == "value") << line;
        ASSERT_EQ(code.exponent, std::stoi(exponent)) << line;
    }
    EXPECT_EQ(rows, 2077);
}

} // namespace
