#include "exporters/prc/Placement.h"
#include "exporters/prc/Sections.h"

namespace prc
{

namespace
{

constexpr std::int32_t loaded = 4;

void noMarkups(SectionWriter& out)
{
    for (int kind = 0; kind < 4; ++kind) // linked items, leaders, markups, annotations
        out.count(0);
}

void writeBody(SectionWriter& out, EntityNumbers& numbers, Body const& body)
{
    out.type(Entity::polyBrepModel);
    out.numberedBase(body.name, numbers);
    out.graphics(body.style, body.hidden);
    out.reference({}); // coordinate system
    out.reference(body.mesh);
    out.boolean(body.closed);
    out.noUserData();
}

void writePart(SectionWriter& out, EntityNumbers& numbers, Part const& part, std::vector<Mesh> const& meshes)
{
    Box const box = boxOf(part, meshes);
    out.type(Entity::partDefinition);
    out.numberedBase(part.name, numbers, part.attributes);
    out.graphics({}, false);
    out.vector(box.minimum[0], box.minimum[1], box.minimum[2]);
    out.vector(box.maximum[0], box.maximum[1], box.maximum[2]);
    out.count(part.bodies.size());
    for (auto const& body : part.bodies)
        writeBody(out, numbers, body);
    noMarkups(out);
    out.count(0); // views
    out.noUserData();
}

void writeOccurrence(SectionWriter& out, EntityNumbers& numbers, Occurrence const& occurrence, double unit)
{
    out.type(Entity::productOccurrence);
    out.numberedBase(occurrence.name, numbers, occurrence.attributes);
    out.graphics({}, occurrence.hidden);
    out.reference(occurrence.part);
    out.reference(occurrence.prototype);
    if (occurrence.prototype)
        out.boolean(true); // in this file structure
    out.count(0);          // external data
    out.count(occurrence.children.size());
    for (std::size_t const child : occurrence.children)
        out.count(child);
    out.character(0);  // product behaviour
    out.boolean(true); // the unit is the model's own
    out.real(unit);
    out.character(0); // product information
    out.integer(loaded);
    bool const placed = occurrence.placement != identity;
    out.boolean(placed);
    if (placed)
        writePlacement(out, occurrence.placement);
    out.count(0); // references to entities
    noMarkups(out);
    out.count(0);       // views
    out.boolean(false); // entity filter
    out.count(0);       // display filters
    out.count(0);       // scene display parameters
    out.noUserData();
}

} // namespace

Bytes treeSection(Scene const& scene, EntityNumbers& numbers)
{
    SectionWriter out;
    out.type(Entity::tree);
    out.base("");
    out.count(scene.parts.size());
    for (auto const& part : scene.parts)
        writePart(out, numbers, part, scene.meshes);
    out.count(scene.occurrences.size());
    for (auto const& occurrence : scene.occurrences)
        writeOccurrence(out, numbers, occurrence, scene.unit);
    out.type(Entity::internalData);
    out.base("");
    out.unsignedInteger(numbers.unused());
    out.reference(scene.root);
    out.noUserData();
    return out.finish();
}

Bytes emptySection(Entity section)
{
    SectionWriter out;
    out.type(section);
    out.base("");
    out.count(0); // contexts
    out.noUserData();
    return out.finish();
}

Bytes modelFileSection(Scene const& scene, UniqueId const& fileStructure)
{
    SectionWriter out;
    out.count(0); // schema
    out.type(Entity::modelFile);
    out.base(scene.name, versionAttribute());
    out.boolean(true); // the unit is the model's own
    out.real(scene.unit);
    out.count(1); // roots
    for (std::uint32_t const word : fileStructure)
        out.unsignedInteger(word);
    out.reference(scene.root);
    out.boolean(true); // active
    out.count(0);      // index of the file structure
    out.noUserData();
    return out.finish();
}

} // namespace prc
