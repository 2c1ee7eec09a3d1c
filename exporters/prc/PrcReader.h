#pragma once

#include "exporters/prc/EntityTypes.h"
#include "exporters/prc/Scene.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace prc
{

/// What a file says about itself, beside its scene.
struct FileFacts {
    std::uint32_t minimalVersion = 0;
    std::uint32_t authoringVersion = 0;
    UniqueId fileId{};
    UniqueId fileStructureId{};
    /// Starts of the file structure's header and of its five sections.
    std::array<std::uint32_t, sectionCount> offsets{};
    std::uint32_t modelFileStart = 0;
    std::uint32_t modelFileEnd = 0;
    /// Unpacked sizes: globals, tree, tessellation, geometry, extra geometry, model file.
    std::array<std::size_t, sectionCount> unpackedSizes{};
    std::vector<Color> colors;
    std::size_t materials = 0;
    std::size_t linePatterns = 0;
    std::size_t coordinateSystems = 0;
    std::uint32_t nextEntityNumber = 0;
};

struct ReadResult {
    std::optional<Scene> scene; ///< set where the file is sound
    FileFacts facts;
    std::string problem; ///< a sentence where it isn't
};

/// Reads a PRC file of one file structure with uncompressed meshes (ISO 14739-1) and checks that everything in it holds
/// together. A material gives a style its diffuse colour; coordinate systems of bodies, polylines, points and
/// colours of vertices are read over. Any bytes are accepted: what is damaged or outside this subset gives a problem.
ReadResult read(std::span<std::uint8_t const> file);
ReadResult readFile(std::filesystem::path const& path);

} // namespace prc
