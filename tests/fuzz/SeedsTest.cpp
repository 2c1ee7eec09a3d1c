#include "fuzz/Targets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

// What the fuzzer starts from, and has ever found, also goes through the build that users get. A target ends the
// process where the product does something wrong.

namespace
{

struct Target {
    char const* name;
    void (*run)(orvfuzz::Input);
};

void PrintTo(Target const& target, std::ostream* out)
{
    *out << target.name;
}

class FuzzSeeds : public testing::TestWithParam<Target>
{
};

TEST_P(FuzzSeeds, AreTreatedAsTheyShould)
{
    int count = 0;
    for (auto const& entry : std::filesystem::directory_iterator(std::filesystem::path(ORV_SOURCE_DIR) / "tests" /
                                                                 "fuzz" / "seeds" / GetParam().name)) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        std::vector<char> const bytes{std::istreambuf_iterator<char>(file), {}};
        std::vector<std::uint8_t> const input(bytes.begin(), bytes.end());
        ASSERT_FALSE(input.empty());
        EXPECT_NO_THROW(GetParam().run(input));
        // Every shorter input too, as a broken transfer leaves it.
        for (std::size_t length = 0; length < input.size(); ++length) {
            EXPECT_NO_THROW(GetParam().run(orvfuzz::Input(input).first(length)));
        }
        ++count;
    }
    EXPECT_GT(count, 5);
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzSeeds,
                         testing::Values(Target{"reader", orvfuzz::fuzzReader},
                                         Target{"thumbnail", orvfuzz::fuzzThumbnail},
                                         Target{"pair", orvfuzz::fuzzPair}),
                         [](auto const& parameter) { return std::string(parameter.param.name); });

} // namespace
