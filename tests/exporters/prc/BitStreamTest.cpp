#include "exporters/prc/BitReader.h"
#include "exporters/prc/BitWriter.h"
#include "exporters/prc/FormatError.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

template <class Write>
std::string bitsOf(Write write)
{
    prc::BitWriter out;
    write(out);
    auto const length = out.length();
    auto const bytes = out.finish();
    std::string text;
    for (std::uint64_t i = 0; i < length; ++i)
        text += (bytes[i / 8] >> (7 - i % 8)) & 1U ? '1' : '0';
    return text;
}

TEST(BitStream, WritesWholeNumbersByteByByte)
{
    struct Case {
        std::uint32_t value;
        char const* bits;
    };
    for (auto const& [value, bits] :
         {Case{0, "0"}, Case{1, "1000000010"}, Case{255, "1111111110"}, Case{256, "1000000001000000010"},
          Case{303, "1001011111000000010"}, Case{8137, "1110010011000111110"},
          Case{0xFFFFFFFF, "1111111111111111111111111111111111110"}})
        EXPECT_EQ(bitsOf([v = value](auto& out) { out.unsignedInteger(v); }), bits) << value;
}

TEST(BitStream, WritesSignedNumbersInAsFewBytesAsKeepTheSign)
{
    struct Case {
        std::int32_t value;
        char const* bits;
    };
    for (auto const& [value, bits] :
         {Case{0, "0"}, Case{1, "1000000010"}, Case{-1, "1111111110"}, Case{127, "1011111110"},
          Case{128, "1100000001000000000"}, Case{-128, "1100000000"}})
        EXPECT_EQ(bitsOf([v = value](auto& out) { out.integer(v); }), bits) << value;
}

TEST(BitStream, WritesRealNumbersLosslessly)
{
    struct Case {
        double value;
        char const* bits;
    };
    for (auto const& [value, bits] : {Case{0, "01"}, Case{-0.0, "01"}, Case{1, "00000"}, Case{-1, "00001"},
                                      Case{2, "1101100"}, Case{0.5, "111011101110"},
                                      Case{3, "1101101"
                                              "1000"
                                              "100000000"
                                              "0000"},
                                      Case{10, "1001001"
                                               "0100"
                                               "100000000"
                                               "0000"},
                                      Case{0.1, "00010001"
                                                "1001"
                                                "110011001"
                                                "0110"
                                                "10011010"},
                                      Case{-2.75, "1101111"
                                                  "0110"
                                                  "100000000"
                                                  "0000"},
                                      Case{1234.5, "0001011001"
                                                   "0011"
                                                   "101001010"
                                                   "100000000"
                                                   "0000"}})
        EXPECT_EQ(bitsOf([v = value](auto& out) { out.real(v); }), bits) << value;
}

TEST(BitStream, RefusesNumbersThatAreNotFinite)
{
    prc::BitWriter out;
    EXPECT_THROW(out.real(std::numeric_limits<double>::infinity()), std::invalid_argument);
    EXPECT_THROW(out.real(std::nan("")), std::invalid_argument);
}

TEST(BitStream, GivesBackEveryNumber)
{
    std::mt19937_64 random(7);
    std::vector<double> numbers{5e-324,
                                -5e-324,
                                std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::min(),
                                0.1F,
                                1.0 / 3,
                                12345,
                                -12345,
                                999999999,
                                180,
                                1164.9999999999998};
    while (numbers.size() < 60000) {
        // Random bytes, some of them repeated, so that every way to shorten a mantissa occurs.
        std::uint64_t bits = random();
        if (auto const pattern = random() % 8; pattern < 6) {
            std::uint64_t const byte = random() & 0xFF;
            for (std::uint64_t i = 0; i < 6; ++i)
                if (random() % 8 >= pattern)
                    bits = (bits & ~(std::uint64_t{0xFF} << (8 * i))) | byte << (8 * i);
        }
        double const number = std::bit_cast<double>(bits);
        if (std::isfinite(number))
            numbers.push_back(number);
    }
    prc::BitWriter out;
    for (double const number : numbers)
        out.real(number);
    auto const bytes = out.finish();
    prc::BitReader in(bytes);
    for (double const number : numbers)
        ASSERT_EQ(std::bit_cast<std::uint64_t>(in.real()), std::bit_cast<std::uint64_t>(number)) << number;
    EXPECT_LT(in.remaining(), 8U);
}

TEST(BitStream, GivesBackWholeNumbersAndTexts)
{
    std::vector<std::int32_t> const numbers{0,
                                            1,
                                            -1,
                                            127,
                                            128,
                                            -128,
                                            -129,
                                            255,
                                            256,
                                            -256,
                                            32767,
                                            32768,
                                            -32768,
                                            -32769,
                                            std::numeric_limits<std::int32_t>::max(),
                                            std::numeric_limits<std::int32_t>::min()};
    prc::BitWriter out;
    for (auto const number : numbers) {
        out.integer(number);
        out.unsignedInteger(static_cast<std::uint32_t>(number));
    }
    out.string("Pièce n°2 – vert");
    out.string("");
    auto const bytes = out.finish();
    prc::BitReader in(bytes);
    for (auto const number : numbers) {
        EXPECT_EQ(in.integer(), number);
        EXPECT_EQ(in.unsignedInteger(), static_cast<std::uint32_t>(number));
    }
    EXPECT_EQ(in.string(), "Pièce n°2 – vert");
    EXPECT_EQ(in.string(), "");
}

TEST(BitStream, ReadsTheShorthandThatStartsBeforeTheMantissa)
{
    // 2 to 4, exponent 1024, nibble 5: the byte before the first is 0x05, and the tail repeats it.
    prc::BitWriter out;
    out.bits(0b11011, 5);
    out.boolean(false);
    out.boolean(true);
    out.bits(5, 4);
    out.bits(0b0000, 4);
    auto const bytes = out.finish();
    EXPECT_EQ(std::bit_cast<std::uint64_t>(prc::BitReader(bytes).real()), 0x4005050505050505U);
}

TEST(BitStream, StopsAtTheEnd)
{
    std::vector<std::uint8_t> const ones(3, 0xFF);
    prc::BitReader in(ones);
    EXPECT_THROW(in.unsignedInteger(), prc::FormatError);
    std::vector<std::uint8_t> const many(8, 0xFF);
    prc::BitReader tooLong(many);
    EXPECT_THROW(tooLong.unsignedInteger(), prc::FormatError) << "more than 32 bits";
    prc::BitReader past(ones);
    past.skip(20);
    EXPECT_THROW(past.bits(5), prc::FormatError);
    EXPECT_THROW(past.skip(5), prc::FormatError);
}

TEST(BitStream, RefusesAListThatCannotBeThere)
{
    prc::BitWriter out;
    out.unsignedInteger(1000);
    out.bits(0, 32);
    auto const bytes = out.finish();
    EXPECT_THROW(prc::BitReader(bytes).count(), prc::FormatError);
}

} // namespace
