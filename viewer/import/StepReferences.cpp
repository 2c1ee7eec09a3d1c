#include "viewer/import/StepReferences.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <vector>

namespace orvviewer
{

namespace
{

/// Walks over the exchange structure's text, past strings and comments, and notes which numbers are defined and used.
class Scanner
{
public:
    void take(char c)
    {
        if (place == Place::text) {
            place = c == '\'' ? Place::outside : Place::text;
            return;
        }
        if (place == Place::comment) {
            place = last == '*' && c == '/' ? Place::outside : Place::comment;
            last = c;
            return;
        }
        if (isNumber) {
            if (c >= '0' && c <= '9') {
                number = number * 10 + static_cast<std::uint64_t>(c - '0');
                return;
            }
            endNumber();
        }
        if (c == '\'') {
            place = Place::text;
        } else if (c == '*' && last == '/') {
            place = Place::comment;
            last = ' ';
            return;
        } else if (c == '#') {
            isNumber = true;
            number = 0;
        } else if (c == ';') {
            isStatementStart = true;
        }
        if (c > ' ' && c != '#' && c != ';' && c != '/') {
            isStatementStart = false;
        }
        last = c;
    }

    bool isComplete()
    {
        std::sort(defined.begin(), defined.end());
        return std::all_of(used.begin(), used.end(),
                           [this](std::uint64_t id) { return std::binary_search(defined.begin(), defined.end(), id); });
    }

private:
    enum class Place { outside, text, comment };

    void endNumber()
    {
        isNumber = false;
        if (isStatementStart) {
            defined.push_back(number);
            isStatementStart = false;
        } else if (used.empty() || used.back() != number) {
            used.push_back(number);
        }
    }

    Place place = Place::outside;
    char last = ' ';
    bool isNumber = false;
    bool isStatementStart = false;
    std::uint64_t number = 0;
    std::vector<std::uint64_t> defined;
    std::vector<std::uint64_t> used;
};

} // namespace

bool hasAllReferences(std::string const& utf8Path)
{
    std::ifstream file(utf8Path, std::ios::binary);
    if (!file) {
        return false;
    }
    Scanner scanner;
    std::vector<char> block(1 << 20);
    while (file) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        for (std::streamsize i = 0; i < file.gcount(); ++i) {
            scanner.take(block[static_cast<std::size_t>(i)]);
        }
    }
    return scanner.isComplete();
}

} // namespace orvviewer
