#include "exporters/prc/DoubleCodes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace prc
{

namespace
{

// A run of neighbouring leaves of the prefix tree, all at the same depth: one complete number, or the exponents first
// to last in order.
struct Run {
    int length;
    int first;
    int last;
    double value;
    bool isValue;
};

constexpr Run number(int length, double value)
{
    return {length, 0, 0, value, true};
}
constexpr Run exponent(int length, int biased)
{
    return {length, biased, biased, 0, false};
}
constexpr Run exponents(int length, int first, int last)
{
    return {length, first, last, 0, false};
}

// The format's code (ISO 14739-1), leaves from left to right. The code is complete, so that depths and order are all
// there is to know: each leaf's code follows from where the one before it ends.
constexpr Run runs[] = {
    // clang-format off
    number(4, 1.0), exponent(6, 1019), exponent(7, 1016), exponent(8, 1033), exponent(11, 1001), exponent(11, 975),
    exponent(10, 1006), number(10, 112.79979705810547), exponent(10, 1009), exponent(5, 1021), exponent(6, 1017),
    number(6, 0.0008), exponent(5, 1032), exponent(6, 1020), number(10, 0.00065), exponent(11, 973),
    exponent(12, 968), exponent(14, 983), exponent(17, 956), exponents(21, 2045, 2046), exponent(20, 880),
    exponent(19, 945), exponent(21, 2047), exponents(22, 0, 1), exponent(20, 881), exponent(19, 950),
    exponent(18, 853), exponent(18, 916), exponent(18, 929), exponent(18, 939), exponent(15, 1089), exponent(13, 965),
    number(10, 1164.9999999999998), number(10, 1194.9999999999998), number(8, 1195.0), exponent(7, 1014),
    exponent(6, 1018), number(8, 1165.0), number(10, 5e-09), exponent(12, 966), exponent(14, 985), exponent(15, 989),
    exponent(15, 991), exponent(13, 987), exponent(11, 1003), exponent(12, 1002), exponent(13, 976),
    exponent(13, 1005), exponent(11, 971), exponent(11, 1008), exponent(16, 875), exponent(17, 943),
    exponent(18, 957), exponent(18, 852), exponent(16, 858), exponent(18, 953), exponent(19, 856),
    exponents(22, 2, 41), exponent(14, 981), exponent(13, 997), exponent(12, 972), number(7, 12345.0), number(2, 0.0),
    exponent(4, 1022), exponent(5, 1026), exponent(5, 1023), exponent(5, 1031), number(6, 999999999.0),
    exponent(8, 1036), number(9, 6.283185307179586), exponent(10, 1010), exponent(13, 980), exponent(13, 986),
    exponent(13, 978), exponent(13, 1037), exponent(11, 974), exponent(8, 1013), number(8, 2.0000000000000004e-07),
    number(5, 0.002), exponent(5, 1025), exponent(5, 1029), exponents(5, 1027, 1028), exponent(5, 1024),
    exponent(5, 1030), exponent(8, 1012), number(9, 2.0000000000000003e-06), number(9, 57.29577951308232),
    exponent(15, 988), exponent(15, 990), exponent(14, 982), exponent(14, 963), exponents(22, 42, 851),
    exponent(21, 857), exponents(22, 859, 871), exponent(22, 873), exponent(21, 872), exponent(22, 874),
    exponent(22, 878), exponent(21, 877), exponent(22, 879), exponents(22, 882, 910), exponent(21, 911),
    exponents(22, 912, 914), exponent(22, 930), exponent(21, 915), exponent(22, 931), exponent(22, 1038),
    exponent(19, 922), exponent(18, 923), exponent(17, 921), exponent(17, 933), exponent(19, 935), exponent(19, 938),
    exponent(19, 942), exponents(22, 1039, 1041), exponents(22, 1043, 1047), exponent(18, 947),
    exponents(22, 1048, 1063), exponent(17, 948), exponent(17, 955), exponents(22, 1064, 1088),
    exponents(22, 1090, 1256), number(11, 0.11879999999999999), exponents(22, 1257, 2024), exponent(14, 995),
    exponents(15, 918, 919), exponent(15, 993), exponent(17, 946), exponents(22, 2025, 2040), exponent(18, 936),
    exponent(17, 951), exponent(18, 876), exponent(18, 920), exponent(13, 1004), number(11, 1165.0000000000002),
    number(9, 360.0), number(9, 0.999999985098839), number(9, 180.0), exponent(7, 1015),
    number(11, 1195.0000000000002), exponent(12, 1034), exponent(13, 996), exponent(14, 962), exponent(15, 958),
    exponent(17, 941), exponent(18, 932), exponent(18, 855), exponent(17, 1042), exponents(22, 2041, 2044),
    exponent(20, 926), exponent(19, 924), exponent(18, 940), exponent(12, 1035), exponent(13, 967), exponent(14, 964),
    exponent(14, 992), exponent(12, 979), exponent(12, 969), number(11, 21.93000030517578), exponent(12, 970),
    exponent(12, 1007), exponent(13, 977), exponent(15, 925), exponent(15, 984), exponent(14, 961),
    exponent(12, 1000), number(11, 0.5), exponent(9, 1011), number(11, 1e-08), number(11, 1000.0),
    number(11, 110.79979705810547), exponent(12, 999), exponent(15, 960), exponent(17, 934), exponent(18, 944),
    exponent(18, 949), exponent(17, 959), exponent(18, 952), exponent(19, 937), exponent(19, 854), exponent(15, 994),
    exponent(17, 954), exponent(18, 917), exponent(18, 927), exponent(16, 928), exponent(13, 998), number(4, 0.001),
    // clang-format on
};

constexpr bool isComplete()
{
    std::uint32_t position = 0;
    for (auto const& run : runs)
        position += static_cast<std::uint32_t>(run.last - run.first + 1) << (longestDoubleCode - run.length);
    return position == 1U << longestDoubleCode;
}
static_assert(isComplete(), "the lengths of the codes must fill the tree");

struct Leaf {
    std::uint32_t start; // code, moved to the top of longestDoubleCode bits
    DoubleCode code;
};

struct Tables {
    Tables()
    {
        std::uint32_t position = 0;
        for (auto const& run : runs)
            for (int biased = run.first; biased <= run.last; ++biased) {
                int const unused = longestDoubleCode - run.length;
                DoubleCode code{position >> unused, run.length, run.isValue, run.value, biased};
                if (run.isValue)
                    code.exponent = static_cast<int>(std::bit_cast<std::uint64_t>(run.value) >> 52);
                leaves.push_back({position, code});
                (run.isValue ? values.emplace_back() : byExponent[static_cast<std::size_t>(biased)]) = code;
                position += 1U << unused;
            }
    }

    std::vector<Leaf> leaves;
    std::vector<DoubleCode> values;
    std::array<DoubleCode, 2048> byExponent;
};

Tables const& tables()
{
    static Tables const instance;
    return instance;
}

} // namespace

DoubleCode codeFor(double magnitude)
{
    auto const wanted = std::bit_cast<std::uint64_t>(magnitude);
    for (auto const& code : tables().values)
        if (std::bit_cast<std::uint64_t>(code.value) == wanted)
            return code;
    return codeForExponent(static_cast<int>(wanted >> 52));
}

DoubleCode codeForExponent(int biased)
{
    return tables().byExponent.at(static_cast<std::size_t>(biased));
}

DoubleCode codeAt(std::uint32_t next)
{
    auto const& leaves = tables().leaves;
    auto const after = std::upper_bound(leaves.begin(), leaves.end(), next,
                                        [](std::uint32_t bits, Leaf const& leaf) { return bits < leaf.start; });
    return std::prev(after)->code;
}

} // namespace prc
