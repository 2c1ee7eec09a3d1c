#pragma once

namespace orvexp
{

/// The outcome of a save.
enum class Status : int {
    ok = 0,
    noLibrary = 1,      ///< the exporter's library could not be loaded
    nothingToWrite = 2, ///< no document, or one without a scene
    cannotWrite = 3     ///< the file could not be written; none is left behind
};

} // namespace orvexp
