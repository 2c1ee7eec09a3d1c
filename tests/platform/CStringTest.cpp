#include "atlstr.h"
#include "stringapi.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

TEST(CString, FormatsWideText)
{
    CString text;
    text.Format(L"%s - %d", L"Feeds", 3);
    EXPECT_EQ(text, L"Feeds - 3");
    text.Format(L"%s - %d", text, 4); // a text may be part of itself
    EXPECT_EQ(text, L"Feeds - 3 - 4");
    text.Format(L"%ls|%S|%hs|%c|%5.1f|%%|%I64d", L"日本", "narrow", "bytes", L'é', 2.25, 5000000000LL);
    EXPECT_EQ(text, L"日本|narrow|bytes|é|  2.2|%|5000000000");
    text.Format(L"%s", std::wstring(5000, L'x').c_str());
    EXPECT_EQ(text.GetLength(), 5000);
    text.AppendFormat(L"%d", 1);
    EXPECT_EQ(text.GetLength(), 5001);
}

TEST(CString, FormatsIntoABuffer)
{
    wchar_t buffer[8];
    EXPECT_EQ(swprintf_s(buffer, L"%d%%", 42), 3);
    EXPECT_STREQ(buffer, L"42%");
    EXPECT_EQ(swprintf_s(buffer, std::size(buffer), L"%s", L"1234567"), 7);
    EXPECT_EQ(swprintf_s(buffer, L"%s", L"12345678"), -1);
    EXPECT_STREQ(buffer, L"");
}

TEST(CString, CutsAtTheEndsOfTheText)
{
    const CString text(L"abcdef");
    EXPECT_EQ(text.Left(2), L"ab");
    EXPECT_EQ(text.Left(20), L"abcdef");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Mid(4), L"ef");
    EXPECT_EQ(text.Mid(9), L"");
    EXPECT_EQ(text.Mid(1, 2), L"bc");
    EXPECT_EQ(text.Find(L"cd"), 2);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L"a", 1), -1);
    EXPECT_EQ(CString(L"a-b-c").ReverseFind(L'-'), 3);
}

TEST(CString, TokenizesAndSkipsEmptyPieces)
{
    const auto pieces = [](const CString& text) {
        std::vector<std::wstring> result;
        int at = 0;
        for (CString piece = text.Tokenize(L",", at); at != -1; piece = text.Tokenize(L",", at))
            result.emplace_back(piece.GetString());
        return result;
    };
    EXPECT_EQ(pieces(L"a,b"), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(pieces(L",,a,, b,"), (std::vector<std::wstring>{L"a", L" b"}));
    EXPECT_TRUE(pieces(L",").empty());
    EXPECT_TRUE(pieces(L"").empty());
}

TEST(CString, ReplacesTrimsAndCompares)
{
    CString text(L"  a+b+c \r\n");
    EXPECT_EQ(text.Trim(), L"a+b+c");
    EXPECT_EQ(text.Replace(L"+", L"%2b"), 2);
    EXPECT_EQ(text, L"a%2bb%2bc");
    EXPECT_EQ(text.Remove(L'%'), 2);
    EXPECT_EQ(text.MakeUpper(), L"A2BB2BC");
    EXPECT_EQ(text.CompareNoCase(L"a2bb2bc"), 0);
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr)).IsEmpty());
    EXPECT_EQ(CString(L"a") + L"b" + L'c', L"abc");
}

TEST(CString, LendsItsBuffer)
{
    CString text(L"ab");
    std::wcscpy(text.GetBuffer(10), L"longer");
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"longer");
}
