#include "exporters/prc/SectionReader.h"

#include "exporters/prc/FormatError.h"

namespace prc
{

void SectionReader::expect(Entity entity, char const* what)
{
    if (type() != entity)
        throw FormatError(std::string(what) + " is missing or of a kind that isn't known");
}

void SectionReader::expectNone(char const* what)
{
    if (unsignedInteger() != 0)
        throw FormatError(std::string("the file holds ") + what + ", which are not read");
}

std::optional<std::size_t> SectionReader::reference()
{
    std::uint32_t const number = unsignedInteger();
    if (number == 0)
        return {};
    return number - 1;
}

std::string SectionReader::title()
{
    return boolean() ? std::to_string(unsignedInteger()) : string();
}

std::vector<Attribute> SectionReader::attributes()
{
    std::vector<Attribute> list;
    for (std::uint32_t rest = count(); rest > 0; --rest) {
        expect(Entity::attribute, "an attribute");
        Attribute attribute{title(), {}};
        for (std::uint32_t entries = count(); entries > 0; --entries) {
            std::string const key = title();
            AttributeValue value;
            switch (unsignedInteger()) {
            case 0:
                break;
            case 1:
                value = integer();
                break;
            case 2:
                value = real();
                break;
            case 3:
                value = Time{unsignedInteger()};
                break;
            case 4:
                value = string();
                break;
            default:
                throw FormatError("an attribute has a value of a kind that isn't known");
            }
            attribute.entries.emplace_back(key, value);
        }
        list.push_back(attribute);
    }
    return list;
}

std::string SectionReader::name()
{
    if (!boolean())
        currentName = string();
    return currentName;
}

EntityBase SectionReader::base()
{
    auto list = attributes();
    return {name(), list};
}

EntityBase SectionReader::numberedBase()
{
    EntityBase const result = base();
    unsignedInteger(); // numbers in the CAD system
    unsignedInteger();
    entityNumbers.push_back(unsignedInteger());
    return result;
}

Graphics SectionReader::graphics()
{
    if (!boolean()) {
        reference(); // layer
        currentGraphics.style = reference();
        std::uint32_t const low = character();
        currentGraphics.behaviour = static_cast<std::uint16_t>(low | static_cast<std::uint32_t>(character()) << 8);
    }
    return currentGraphics;
}

std::vector<double> SectionReader::numbers(std::uint32_t count)
{
    std::vector<double> list(count);
    for (double& number : list)
        number = real();
    return list;
}

void SectionReader::expectEnd()
{
    if (remaining() > 15)
        throw FormatError("a section holds more than it should");
}

} // namespace prc
