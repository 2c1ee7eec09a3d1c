#include "service/EmailAddress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <locale>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

struct AddressCase {
    wchar_t const* address;
    bool valid;
};

class EmailAddress : public testing::TestWithParam<AddressCase>
{
};

TEST_P(EmailAddress, IsTestedAsAWhole)
{
    EXPECT_EQ(isValidEmail(GetParam().address), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(
    Table, EmailAddress,
    testing::Values(AddressCase{L"ada@example.com", true}, AddressCase{L"ada.lovelace@example.com", true},
                    AddressCase{L"ada_lovelace@example.com", true}, AddressCase{L"ada_.lovelace@example.com", true},
                    AddressCase{L"a_d_a.love_lace@example.com", true}, AddressCase{L"ada.@example.com", true},
                    AddressCase{L"7@8.9", true}, AddressCase{L"ada@mail.example.co.uk", true},
                    AddressCase{L"j\u00fcrgen@example.com", false}, AddressCase{L"ada@b\u00fccher.example", false},
                    AddressCase{L"\u0661@example.com", false}, AddressCase{L"\u30a2\u30c0@example.com", false},
                    AddressCase{L"ada.king.lovelace@example.com", false},
                    AddressCase{L"ada..lovelace@example.com", false}, AddressCase{L".ada@example.com", false},
                    AddressCase{L"ada@example", false}, AddressCase{L"ada@example.", false},
                    AddressCase{L"ada@.com", false}, AddressCase{L"ada@example..com", false},
                    AddressCase{L"ada-l@example.com", false}, AddressCase{L"ada@my-example.com", false},
                    AddressCase{L"ada+l@example.com", false}, AddressCase{L" ada@example.com", false},
                    AddressCase{L"ada@example.com ", false}, AddressCase{L"ada l@example.com", false},
                    AddressCase{L"ada", false}, AddressCase{L"", false}, AddressCase{L"@example.com", false},
                    AddressCase{L"ada@@example.com", false}, AddressCase{L"ada@example.com\n", false}));

TEST(EmailAddress, MayBeAsLongAsSomebodyPastes)
{
    std::wstring const host = L"@example.com";
    EXPECT_TRUE(isValidEmail(std::wstring(320 - host.size(), L'a') + host)) << "the longest that mail knows";
    EXPECT_TRUE(isValidEmail(std::wstring(512 - host.size(), L'a') + host));
    EXPECT_TRUE(isValidEmail(std::wstring(512 - host.size(), L'_') + host)) << "the longest search";
    EXPECT_FALSE(isValidEmail(std::wstring(250, L'_') + L"@" + std::wstring(250, L'b'))) << "many ways, none matches";
    EXPECT_FALSE(isValidEmail(std::wstring(513 - host.size(), L'a') + host));
    EXPECT_FALSE(isValidEmail(std::wstring(512, L'_')));
    EXPECT_FALSE(isValidEmail(std::wstring(20000000, L'a') + host));
}

TEST(EmailAddress, KnowsTheLettersOfAsciiAloneWhateverTheLocale)
{
    std::locale const before = std::locale::global(std::locale("C.UTF-8"));
    EXPECT_FALSE(isValidEmail(L"j\u00fcrgen@example.com"));
    EXPECT_TRUE(isValidEmail(L"jurgen@example.com"));
    std::locale::global(before);
}

TEST(SplitAddresses, CutsAtCommasAndDropsEmptyPieces)
{
    EXPECT_THAT(splitAddresses(L",a@b.c,,d@e.f,"), ElementsAre(L"a@b.c", L"d@e.f"));
    EXPECT_THAT(splitAddresses(L"a@b.c"), ElementsAre(L"a@b.c"));
}

TEST(SplitAddresses, KeepsBlanks)
{
    EXPECT_THAT(splitAddresses(L"a@b.c, d@e.f"), ElementsAre(L"a@b.c", L" d@e.f"));
    EXPECT_FALSE(isValidEmail(splitAddresses(L"a@b.c, d@e.f")[1]));
}

TEST(SplitAddresses, FindsNoPieceInNothingButCommas)
{
    EXPECT_THAT(splitAddresses(L""), IsEmpty());
    EXPECT_THAT(splitAddresses(L",,,"), IsEmpty());
}

} // namespace
