#pragma once

#include "feed/MadeLocale.h"
#include "support/PluginEnvironment.h"

#include <clocale>
#include <string>

namespace orvtest
{

/// While it lives, the C library calls November "Xyz" and the afternoon "QM". The locale is the plain one of this
/// system with these words changed in place; `isSet` is false on a system without it.
class ForeignTimes
{
public:
    ForeignTimes()
    {
        std::string words = contentOf("/usr/lib/locale/C.utf8/LC_TIME");
        change(words, std::string("\0Nov\0", 5), std::string("\0Xyz\0", 5));
        change(words, std::string("\0PM\0", 4), std::string("\0QM\0", 4));
        change(words, wide("Nov"), wide("Xyz"));
        change(words, wide("PM"), wide("QM"));
        writeFile(folder.file("foreign", "LC_TIME"), words);
        isSet = !words.empty() && std::setlocale(LC_TIME, "foreign") != nullptr;
    }
    ~ForeignTimes() { std::setlocale(LC_TIME, "C"); }
    ForeignTimes(ForeignTimes const&) = delete;
    ForeignTimes& operator=(ForeignTimes const&) = delete;

    bool isSet = false;

private:
    static std::string wide(std::string const& word)
    {
        std::string bytes;
        for (char const letter : word) {
            bytes += letter + std::string(3, '\0');
        }
        return bytes + std::string(4, '\0');
    }
    static void change(std::string& text, std::string const& before, std::string const& after)
    {
        std::size_t const at = text.find(before);
        if (at != std::string::npos) {
            text.replace(at, before.size(), after);
        }
    }

    LocaleFolder folder;
};

} // namespace orvtest
