#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvtest
{

using CsvLines = std::vector<std::vector<std::string>>;

/// RFC 4180, strictly: lines end in CR LF, quotes are doubled within quotes. The mark of UTF-8 stands in front.
inline CsvLines parseCsv(std::string const& bytes)
{
    EXPECT_TRUE(bytes.starts_with("\xEF\xBB\xBF")) << "a spreadsheet has to know that it is UTF-8";
    std::string const text = bytes.substr(3);
    CsvLines lines;
    std::vector<std::string> line;
    std::string field;
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const c = text[i];
        if (isQuoted) {
            if (c != '"') {
                field += c;
            } else if (i + 1 < text.size() && text[i + 1] == '"') {
                field += text[++i];
            } else {
                isQuoted = false;
            }
        } else if (c == '"') {
            EXPECT_TRUE(field.empty());
            isQuoted = true;
        } else if (c == ',') {
            line.push_back(std::move(field));
            field.clear();
        } else if (c == '\r') {
            EXPECT_EQ(text[++i], '\n');
            line.push_back(std::move(field));
            field.clear();
            lines.push_back(std::move(line));
            line.clear();
        } else {
            EXPECT_NE(c, '\n');
            field += c;
        }
    }
    EXPECT_TRUE(field.empty() && line.empty() && !isQuoted) << "the last line ends as the others do";
    return lines;
}

} // namespace orvtest
