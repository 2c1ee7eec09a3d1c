#pragma once

#include "platform/Process.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace orvtest
{

/// A compiled resource file with texts of a test's own, in English.
class StringTable
{
public:
    /// `text` is plain ASCII.
    void set(int id, std::wstring const& text) { texts[id] = text; }

    /// Writes the file and has it found in the place of the library of that name.
    void registerAs(std::wstring const& library, std::filesystem::path const& file) const
    {
        std::ofstream(file, std::ios::binary) << content();
        EXPECT_TRUE(orvplatform::registerModuleFile(library, file.string()));
    }

private:
    static constexpr int stringsInBlock = 16;
    static constexpr std::uint32_t stringType = 6;
    static constexpr std::uint32_t english = 0x0409;

    static std::string number(std::uint32_t value, int count)
    {
        std::string bytes;
        for (int i = 0; i < count; ++i) {
            bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
        }
        return bytes;
    }
    /// A resource behind its header of 32 bytes; type, name and language are numbers.
    static std::string entry(std::uint32_t type, std::uint32_t name, std::uint32_t language, std::string data)
    {
        std::string const header = number(static_cast<std::uint32_t>(data.size()), 4) + number(32, 4) +
                                   number(0xFFFF, 2) + number(type, 2) + number(0xFFFF, 2) + number(name, 2) +
                                   number(0, 6) + number(language, 2) + number(0, 8);
        data.resize((data.size() + 3) / 4 * 4);
        return header + data;
    }
    /// 16 texts in a row, each a count of characters and the characters.
    std::string block(int first) const
    {
        std::string data;
        for (int id = first; id < first + stringsInBlock; ++id) {
            auto const found = texts.find(id);
            std::wstring const text = found == texts.end() ? std::wstring() : found->second;
            data += number(static_cast<std::uint32_t>(text.size()), 2);
            for (wchar_t const character : text) {
                data += number(static_cast<std::uint32_t>(character), 2);
            }
        }
        return data;
    }
    std::string content() const
    {
        std::string bytes = entry(0, 0, 0, {}); // the format's opening
        int done = 0;
        for (auto const& [id, text] : texts) {
            int const number = id / stringsInBlock + 1;
            if (number > done) {
                bytes += entry(stringType, static_cast<std::uint32_t>(number), english,
                               block((number - 1) * stringsInBlock));
                done = number;
            }
        }
        return bytes;
    }

    std::map<int, std::wstring> texts;
};

} // namespace orvtest
