#pragma once

#include "exporters/prc/EntityTypes.h"
#include "exporters/prc/Scene.h"
#include "host/orvexp/Status.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace prc
{

struct WriteOptions {
    /// Identities of the file and of its file structure; random ones where not set. They must differ.
    std::optional<UniqueId> fileId;
    std::optional<UniqueId> fileStructureId;
    /// Called with the done part of the work, 0 to 1, never falling; returning false ends it.
    std::function<bool(double)> progress;
};

/// How writing ended. `problem` is a sentence where it didn't succeed, and `reason` tells why the file can't be
/// written.
struct WriteOutcome {
    enum class Result { written, cancelled, unsound, cannotWrite };
    Result result = Result::written;
    std::string problem;
    orvexp::Status reason = orvexp::Status::ok;
    explicit operator bool() const { return result == Result::written; }
};

/// The scene as the bytes of a PRC file (ISO 14739-1, version 8137), empty where the work was cancelled. Throws
/// std::invalid_argument where problemOf(scene) finds something, std::length_error where the file would pass 4 GiB.
std::vector<std::uint8_t> encode(Scene const& scene, WriteOptions const& options = {});

/// Writes the scene to a file. It is written under a temporary name in the same directory and renamed, so that a file
/// of that name is replaced as a whole or stays as it was, and nothing else is left behind. Throws nothing.
WriteOutcome writeFile(Scene const& scene, std::filesystem::path const& path, WriteOptions const& options = {});

} // namespace prc
