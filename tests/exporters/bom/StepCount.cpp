#include "exporters/bom/StepCount.h"

#include "viewer/ModelFixture.h"

#include <functional>
#include <regex>
#include <set>
#include <vector>

namespace orvtest
{

namespace
{

struct Entity {
    std::string kind;
    std::vector<std::string> values; ///< as they stand, texts without their quotes
};

/// The values of a list: separated by commas outside of texts and inner lists.
std::vector<std::string> valuesOf(std::string const& list)
{
    std::vector<std::string> values(1);
    int depth = 0;
    bool isText = false;
    for (char const c : list) {
        if (c == '\'') {
            isText = !isText;
        } else if (!isText && c == ',' && depth == 0) {
            values.emplace_back();
        } else if (isText || !isspace(static_cast<unsigned char>(c))) {
            depth += isText ? 0 : c == '(' ? 1 : c == ')' ? -1 : 0;
            values.back() += c;
        }
    }
    return values;
}

/// The entities of simple form by their "#number".
std::map<std::string, Entity> entitiesOf(std::string const& text)
{
    std::map<std::string, Entity> entities;
    std::size_t begin = text.find("DATA;");
    std::regex const form(R"(^\s*(#\d+)\s*=\s*(\w+)\s*\(([\s\S]*)\)\s*$)");
    bool isText = false;
    for (std::size_t i = begin == std::string::npos ? text.size() : begin += 5; i < text.size(); ++i) {
        isText = isText != (text[i] == '\'');
        if (text[i] == ';' && !isText) {
            std::string const statement = text.substr(begin, i - begin);
            begin = i + 1;
            std::smatch found;
            if (statement.find("PRODUCT") == std::string::npos && statement.find("NEXT_ASS") == std::string::npos) {
                continue; // nearly everything in the file
            }
            if (std::regex_match(statement, found, form)) {
                entities[found[1]] = {found[2], valuesOf(found[3])};
            }
        }
    }
    return entities;
}

} // namespace

std::map<std::string, int> countedInStep(std::filesystem::path const& file)
{
    auto const entities = entitiesOf(contentOf(file));
    std::map<std::string, std::vector<std::string>> partsOf; // by the definition of the product
    std::set<std::string> used;
    std::vector<std::string> definitions;
    for (auto const& [number, entity] : entities) {
        if (entity.kind == "NEXT_ASSEMBLY_USAGE_OCCURRENCE") {
            partsOf[entity.values.at(3)].push_back(entity.values.at(4));
            used.insert(entity.values.at(4));
        } else if (entity.kind == "PRODUCT_DEFINITION") {
            definitions.push_back(number);
        }
    }
    std::map<std::string, int> counts;
    std::function<void(std::string const&)> const count = [&](std::string const& definition) {
        if (auto const parts = partsOf.find(definition); parts != partsOf.end()) {
            for (auto const& part : parts->second) {
                count(part);
            }
            return;
        }
        auto const& formation = entities.at(entities.at(definition).values.at(2));
        ++counts[entities.at(formation.values.at(2)).values.at(1)];
    };
    for (auto const& definition : definitions) {
        if (!used.contains(definition)) {
            count(definition);
        }
    }
    return counts;
}

} // namespace orvtest
