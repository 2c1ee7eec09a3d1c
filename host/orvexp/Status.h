#pragma once

namespace orvexp
{

/// The outcome of a save. Whatever went wrong, an earlier file of that name is as it was and nothing is left behind.
enum class Status : int {
    ok = 0,
    noLibrary = 1,       ///< the exporter's library could not be loaded
    nothingToWrite = 2,  ///< no document, or one without a scene
    cannotWrite = 3,     ///< the file could not be written, for no reason of those below
    isFolder = 4,        ///< a folder has that name
    noFolder = 5,        ///< the file's folder doesn't exist
    isProtected = 6,     ///< the file that would be replaced is protected against writing
    folderProtected = 7, ///< no right to make a file in the folder
    readOnlyDisk = 8,
    diskFull = 9,
    overQuota = 10,    ///< the user's share of the disk is used up
    fileTooLarge = 11, ///< for the file system
    nameTooLong = 12,  ///< for the file system
    noMemory = 13,
    modelTooLarge = 14, ///< the format can't count as much
    pathTooLong = 15    ///< that of the folder, for the system
};

} // namespace orvexp
