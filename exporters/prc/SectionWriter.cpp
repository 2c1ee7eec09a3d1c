#include "exporters/prc/SectionWriter.h"

#include <limits>
#include <stdexcept>

namespace prc
{

void SectionWriter::count(std::size_t number)
{
    if (number > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("a list is too long for a PRC file");
    unsignedInteger(static_cast<std::uint32_t>(number));
}

void SectionWriter::reference(std::optional<std::size_t> index)
{
    count(index ? *index + 1 : 0);
}

void SectionWriter::attributes(std::vector<Attribute> const& list)
{
    auto const title = [this](std::string const& text) {
        boolean(false); // a text, not a number
        string(text);
    };
    count(list.size());
    for (auto const& attribute : list) {
        type(Entity::attribute);
        title(attribute.title);
        count(attribute.entries.size());
        for (auto const& [key, value] : attribute.entries) {
            title(key);
            count(value.index());
            if (auto const* whole = std::get_if<std::int32_t>(&value))
                integer(*whole);
            else if (auto const* number = std::get_if<double>(&value))
                real(*number);
            else if (auto const* time = std::get_if<Time>(&value))
                unsignedInteger(time->seconds);
            else if (auto const* text = std::get_if<std::string>(&value))
                string(*text);
        }
    }
}

void SectionWriter::name(std::string const& text)
{
    bool const same = text == currentName;
    boolean(same);
    if (same)
        return;
    string(text);
    currentName = text;
}

void SectionWriter::base(std::string const& text, std::vector<Attribute> const& list)
{
    attributes(list);
    name(text);
}

void SectionWriter::numberedBase(std::string const& text, EntityNumbers& numbers, std::vector<Attribute> const& list)
{
    base(text, list);
    unsignedInteger(0); // no number in the CAD system
    unsignedInteger(0); // nor a lasting one
    unsignedInteger(numbers.next());
}

void SectionWriter::graphics(std::optional<std::size_t> style, bool hidden)
{
    bool const same = style == currentStyle && hidden == currentlyHidden;
    boolean(same);
    if (same)
        return;
    reference({}); // no layer
    reference(style);
    character(hidden ? 0 : behaviourShown);
    character(0);
    currentStyle = style;
    currentlyHidden = hidden;
}

void SectionWriter::vector(double x, double y, double z)
{
    real(x);
    real(y);
    real(z);
}

std::vector<Attribute> versionAttribute()
{
    return {{"__PRC_RESERVED_ATTRIBUTE_PRCInternalVersion", {{"", static_cast<std::int32_t>(formatVersion)}}}};
}

} // namespace prc
