#pragma once

#include "exporters/prc/BitWriter.h"
#include "exporters/prc/EntityTypes.h"
#include "exporters/prc/Scene.h"

#include <optional>
#include <string>
#include <vector>

namespace prc
{

/// Hands out the numbers that tell a file structure's entities apart, from 1.
class EntityNumbers
{
public:
    std::uint32_t next() { return following++; }
    std::uint32_t unused() const { return following; }

private:
    std::uint32_t following = 1;
};

/// A bit stream with what the entities of a section have in common. Name and graphics are only written where they
/// change; both start anew with each section.
class SectionWriter : public BitWriter
{
public:
    void type(Entity entity) { unsignedInteger(static_cast<std::uint32_t>(entity)); }
    void count(std::size_t number);
    /// An index counted from 1; 0 for none.
    void reference(std::optional<std::size_t> index);
    void attributes(std::vector<Attribute> const& list);
    void name(std::string const& text);
    void base(std::string const& text, std::vector<Attribute> const& list = {});
    /// Base of an entity that others refer to.
    void numberedBase(std::string const& text, EntityNumbers& numbers, std::vector<Attribute> const& list = {});
    void graphics(std::optional<std::size_t> style, bool hidden);
    void vector(double x, double y, double z);
    void noUserData() { unsignedInteger(0); }

private:
    std::string currentName;
    std::optional<std::size_t> currentStyle;
    bool currentlyHidden = false;
};

/// The attribute by which readers learn the version of the content.
std::vector<Attribute> versionAttribute();

} // namespace prc
