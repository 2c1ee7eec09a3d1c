#include "tests/support/RepeatedStep.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace orvtest
{

namespace
{

/// The entities of a STEP file by number, each as its text without line breaks.
std::map<int, std::string> entitiesOf(std::string const& file)
{
    std::map<int, std::string> entities;
    std::string line;
    for (char const character : file) {
        if (character == '\n' || character == '\r' || (character == ' ' && line.empty())) {
            continue;
        }
        if (character != ';') {
            line += character;
            continue;
        }
        std::size_t const equals = line.find('=');
        if (line.starts_with('#') && equals != std::string::npos) {
            std::size_t const text = line.find_first_not_of(' ', equals + 1);
            entities[std::stoi(line.substr(1))] = text == std::string::npos ? "" : line.substr(text);
        }
        line.clear();
    }
    return entities;
}

/// The entities that another one refers to, in order.
std::vector<int> referencesIn(std::string const& entity)
{
    std::vector<int> references;
    for (std::size_t at = entity.find('#'); at != std::string::npos; at = entity.find('#', at + 1)) {
        references.push_back(std::stoi(entity.substr(at + 1)));
    }
    return references;
}

/// What the new root needs to know of the assembly in the file.
struct Assembly {
    int definition = 0;
    int representation = 0;
    int placement = 0; ///< the representation's own axes
    int context = 0;   ///< of the representation: units
    int productContext = 0;
    int definitionContext = 0;
};

bool findAssembly(std::map<int, std::string> const& entities, Assembly& found)
{
    std::set<int> below;
    for (auto const& [number, text] : entities) {
        if (text.starts_with("NEXT_ASSEMBLY_USAGE_OCCURRENCE")) {
            below.insert(referencesIn(text).at(1));
        }
    }
    for (auto const& [number, text] : entities) {
        if (!text.starts_with("SHAPE_DEFINITION_REPRESENTATION")) {
            continue;
        }
        auto const link = referencesIn(text);
        auto const shape = referencesIn(entities.at(link.at(0)));
        std::string const& representation = entities.at(link.at(1));
        if (below.contains(shape.at(0)) || !entities.at(shape.at(0)).starts_with("PRODUCT_DEFINITION(") ||
            !representation.starts_with("SHAPE_REPRESENTATION")) {
            continue;
        }
        auto const definition = referencesIn(entities.at(shape.at(0)));
        auto const product = referencesIn(entities.at(definition.at(0)));
        auto const content = referencesIn(representation);
        found = {
            shape.at(0),     link.at(1), content.at(0), content.back(), referencesIn(entities.at(product.at(0))).at(0),
            definition.at(1)};
        return entities.at(found.placement).starts_with("AXIS2_PLACEMENT_3D");
    }
    return false;
}

class Writer
{
public:
    explicit Writer(int first) : next(first) {}

    int add(std::string const& entity)
    {
        text << '#' << next << " = " << entity << ";\n";
        return next++;
    }
    std::string written() const { return text.str(); }

private:
    int next;
    std::ostringstream text;
};

std::string ref(int number)
{
    std::string text(1, '#');
    return text.append(std::to_string(number));
}

std::string instances(Assembly const& assembly, int firstNumber, int times, double pitch)
{
    Writer out(firstNumber);
    int const product = out.add("PRODUCT('many','many','',(" + ref(assembly.productContext) + "))");
    int const formation = out.add("PRODUCT_DEFINITION_FORMATION('',''," + ref(product) + ")");
    int const root =
        out.add("PRODUCT_DEFINITION('design',''," + ref(formation) + "," + ref(assembly.definitionContext) + ")");
    int const shape = out.add("PRODUCT_DEFINITION_SHAPE('',''," + ref(root) + ")");
    int const up = out.add("DIRECTION('',(0.,0.,1.))");
    int const right = out.add("DIRECTION('',(1.,0.,0.))");
    int const columns = static_cast<int>(std::ceil(std::sqrt(times)));
    std::vector<int> places;
    std::string list;
    for (int copy = 0; copy < times; ++copy) {
        std::ostringstream point;
        point << std::showpoint << "CARTESIAN_POINT('',(" << copy % columns * pitch << ',' << copy / columns * pitch
              << ",0.))";
        int const origin = out.add(point.str());
        places.push_back(out.add("AXIS2_PLACEMENT_3D(''," + ref(origin) + "," + ref(up) + "," + ref(right) + ")"));
        list.append(copy == 0 ? "" : ",").append(ref(places.back()));
    }
    int const representation = out.add("SHAPE_REPRESENTATION('',(" + list + ")," + ref(assembly.context) + ")");
    out.add("SHAPE_DEFINITION_REPRESENTATION(" + ref(shape) + "," + ref(representation) + ")");
    for (int copy = 0; copy < times; ++copy) {
        int const move = out.add("ITEM_DEFINED_TRANSFORMATION('',''," + ref(assembly.placement) + "," +
                                 ref(places[static_cast<std::size_t>(copy)]) + ")");
        int const relation = out.add("( REPRESENTATION_RELATIONSHIP('',''," + ref(assembly.representation) + "," +
                                     ref(representation) + ") REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION(" +
                                     ref(move) + ") SHAPE_REPRESENTATION_RELATIONSHIP() )");
        int const use = out.add("NEXT_ASSEMBLY_USAGE_OCCURRENCE('m" + std::to_string(copy) + "','copy " +
                                std::to_string(copy) + "',''," + ref(root) + "," + ref(assembly.definition) + ",$)");
        int const usedShape = out.add("PRODUCT_DEFINITION_SHAPE('',''," + ref(use) + ")");
        out.add("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION(" + ref(relation) + "," + ref(usedShape) + ")");
    }
    return out.written();
}

} // namespace

bool writeRepeatedStep(std::filesystem::path const& source, int times, double pitch,
                       std::filesystem::path const& target)
{
    std::ifstream in(source, std::ios::binary);
    std::string file{std::istreambuf_iterator<char>(in), {}};
    auto const entities = entitiesOf(file);
    Assembly assembly;
    std::size_t const end = file.rfind("ENDSEC;");
    if (entities.empty() || end == std::string::npos || !findAssembly(entities, assembly)) {
        return false;
    }
    file.insert(end, instances(assembly, entities.rbegin()->first + 1, times, pitch));
    std::ofstream out(target, std::ios::binary);
    out << file;
    return out.flush().good();
}

} // namespace orvtest
