#include "exporters/prc/FormatError.h"
#include "exporters/prc/Placement.h"
#include "exporters/prc/SectionParsers.h"

namespace prc
{

namespace
{

constexpr int deepestSet = 64;

bool isHidden(Graphics const& graphics)
{
    return (graphics.behaviour & behaviourShown) == 0;
}

void expectNoMarkups(SectionReader& in)
{
    for (int kind = 0; kind < 4; ++kind)
        in.expectNone("markups");
    in.expectNone("views");
}

// Every item begins alike; those that are no mesh are read over.
void readItems(SectionReader& in, Part& part, FileFacts const& facts, int depth)
{
    if (depth > deepestSet)
        throw FormatError("groups of bodies lie too deep");
    for (std::uint32_t rest = in.count(); rest > 0; --rest) {
        Entity const type = in.type();
        EntityBase const base = in.numberedBase();
        Graphics const graphics = in.graphics();
        if (auto const system = in.reference(); system && *system >= facts.coordinateSystems)
            throw FormatError("a body has a coordinate system that the file doesn't hold");
        auto const mesh = in.reference();
        switch (type) {
        case Entity::polyBrepModel:
            part.bodies.push_back({base.name, mesh, graphics.style, in.boolean(), isHidden(graphics)});
            break;
        case Entity::polyWire:
            break;
        case Entity::pointSet:
            in.numbers(3 * in.count(6));
            break;
        case Entity::set:
            readItems(in, part, facts, depth + 1);
            break;
        case Entity::coordinateSystem:
            readPlacement(in);
            break;
        default:
            throw FormatError("a part holds exact geometry or another body that is not read");
        }
        in.skipUserData();
    }
}

Part readPart(SectionReader& in, FileFacts const& facts, Box& box)
{
    in.expect(Entity::partDefinition, "a part");
    EntityBase const base = in.numberedBase();
    Part part{base.name, base.attributes, {}};
    in.graphics();
    for (auto* corner : {&box.minimum, &box.maximum})
        for (double& coordinate : *corner)
            coordinate = in.real();
    box.empty = box.minimum[0] > box.maximum[0]; // how some writers say that they don't know it
    readItems(in, part, facts, 0);
    expectNoMarkups(in);
    in.skipUserData();
    return part;
}

Occurrence readOccurrence(SectionReader& in, Scene& scene)
{
    in.expect(Entity::productOccurrence, "an occurrence");
    EntityBase const base = in.numberedBase();
    Occurrence occurrence{base.name, base.attributes, {}, {}, {}, identity, isHidden(in.graphics())};
    occurrence.part = in.reference();
    occurrence.prototype = in.reference();
    if (occurrence.prototype && !in.boolean())
        throw FormatError("an occurrence refers to another file, which is not read");
    in.expectNone("external data");
    occurrence.children.resize(in.count());
    for (auto& child : occurrence.children)
        child = in.unsignedInteger();
    in.character();
    in.boolean();
    scene.unit = in.real();
    in.character();
    in.integer();
    if (in.boolean())
        occurrence.placement = readPlacement(in);
    in.expectNone("references to entities");
    expectNoMarkups(in);
    if (in.boolean())
        throw FormatError("the file holds entity filters, which are not read");
    in.expectNone("display filters");
    in.expectNone("scene display parameters");
    in.skipUserData();
    return occurrence;
}

} // namespace

void readTree(SectionReader& in, Scene& scene, FileFacts& facts, std::vector<Box>& boxes)
{
    in.expect(Entity::tree, "the tree section");
    in.base();
    for (std::uint32_t rest = in.count(); rest > 0; --rest)
        scene.parts.push_back(readPart(in, facts, boxes.emplace_back()));
    for (std::uint32_t rest = in.count(); rest > 0; --rest)
        scene.occurrences.push_back(readOccurrence(in, scene));
    in.expect(Entity::internalData, "the tree's internal data");
    in.base();
    facts.nextEntityNumber = in.unsignedInteger();
    auto const root = in.reference();
    if (!root)
        throw FormatError("the tree has no root");
    scene.root = *root;
    in.skipUserData();
    in.expectEnd();
}

void readEmpty(SectionReader& in, Entity section)
{
    in.expect(section, "a geometry section");
    in.base();
    in.expectNone("exact geometry");
    in.skipUserData();
    in.expectEnd();
}

void readModelFile(SectionReader& in, Scene& scene, FileFacts const& facts)
{
    in.expectNone("fields of a newer version");
    in.expect(Entity::modelFile, "the model file section");
    scene.name = in.base().name;
    in.boolean();
    double const unit = in.real();
    if (unit != scene.unit)
        throw FormatError("model and occurrences have different units of length");
    if (in.unsignedInteger() != 1)
        throw FormatError("the model has not exactly one root");
    for (std::uint32_t const word : facts.fileStructureId)
        if (in.unsignedInteger() != word)
            throw FormatError("the model names another file structure");
    if (in.reference() != std::optional<std::size_t>(scene.root))
        throw FormatError("model and tree name different roots");
    in.boolean();
    in.unsignedInteger();
    in.skipUserData();
    in.expectEnd();
}

} // namespace prc
