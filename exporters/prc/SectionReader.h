#pragma once

#include "exporters/prc/BitReader.h"
#include "exporters/prc/EntityTypes.h"
#include "exporters/prc/Scene.h"

#include <optional>
#include <string>
#include <vector>

namespace prc
{

/// What every entity that others refer to starts with.
struct EntityBase {
    std::string name;
    std::vector<Attribute> attributes;
};

struct Graphics {
    std::optional<std::size_t> style;
    std::uint16_t behaviour = behaviourShown;
};

/// Reads what the entities of a section have in common. Throws FormatError, like the reader below it.
class SectionReader : public BitReader
{
public:
    /// `numbers` collects the entities' numbers and must outlive the reader.
    SectionReader(std::span<std::uint8_t const> content, std::vector<std::uint32_t>& numbers)
        : BitReader(content), entityNumbers(numbers)
    {
    }

    Entity type() { return static_cast<Entity>(unsignedInteger()); }
    void expect(Entity entity, char const* what);
    /// Zero, or FormatError: for lists whose elements lie outside the subset.
    void expectNone(char const* what);
    /// An index counted from 1.
    std::optional<std::size_t> reference();
    std::vector<Attribute> attributes();
    std::string name();
    EntityBase base();
    EntityBase numberedBase();
    Graphics graphics();
    std::vector<double> numbers(std::uint32_t count);
    void skipUserData() { skip(unsignedInteger()); }
    /// At most the padding of the last byte, or one byte more, is left.
    void expectEnd();

private:
    std::string title();

    std::vector<std::uint32_t>& entityNumbers;
    std::string currentName;
    Graphics currentGraphics;
};

} // namespace prc
