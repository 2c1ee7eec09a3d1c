#pragma once

#include "exporters/prc/Scene.h"

#include <cstdint>
#include <span>
#include <vector>

// Scenes that several tests write.
namespace prctest
{

/// A box with its lower corner at the origin: 8 points, 6 normals, one face a side.
prc::Mesh boxMesh(double x, double y, double z);

/// A placement turned about z and moved.
prc::Matrix placedAt(double x, double y, double z, double turn = 0);

/// One part with one box and one occurrence of it.
prc::Scene oneBox();

/// An assembly with everything the writer knows: two colours, one translucent, a prototype with two instances, nested
/// assemblies, a hidden occurrence, attributes, faces of their own colour, placements of every kind.
prc::Scene assembly();

/// The unpacked content of one section of a file, 0 globals to 5 model file.
std::vector<std::uint8_t> sectionOf(std::span<std::uint8_t const> file, std::size_t section);

} // namespace prctest
