#pragma once

#include "feed/MadeLocale.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace orvtest
{

/// While it lives, the C library writes numbers with a decimal comma, as on a German or French desktop. The locale is
/// made here, since a bare system has none of that kind.
class CommaLocale
{
public:
    CommaLocale()
    {
        writeNumbers(folder.file("comma", "LC_NUMERIC"));
        EXPECT_NE(std::setlocale(LC_NUMERIC, "comma"), nullptr);
        EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    }
    ~CommaLocale() { std::setlocale(LC_NUMERIC, "C"); }
    CommaLocale(CommaLocale const&) = delete;
    CommaLocale& operator=(CommaLocale const&) = delete;

private:
    /// The C library's compiled format: a mark of the category, the number of items, their offsets, the items: decimal
    /// point, thousands separator and grouping, both signs as wide characters, and the encoding.
    static void writeNumbers(std::filesystem::path const& file)
    {
        constexpr std::uint32_t mark = 0x20031115U ^ static_cast<std::uint32_t>(LC_NUMERIC);
        constexpr std::uint32_t start = 8 + 6 * 4;
        std::array<std::uint32_t, 8> const head = {mark,      6,         start,     start + 2,
                                                   start + 3, start + 4, start + 8, start + 12};
        std::string const texts(",\0\0\0", 4); // the point, no separator, no grouping, a filler
        std::array<std::uint32_t, 2> const wide = {',', 0};
        std::ofstream stream(file, std::ios::binary);
        stream.write(reinterpret_cast<char const*>(head.data()), sizeof head);
        stream << texts;
        stream.write(reinterpret_cast<char const*>(wide.data()), sizeof wide);
        stream << std::string("UTF-8\0", 6);
    }

    LocaleFolder folder;
};

} // namespace orvtest
