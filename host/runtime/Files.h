#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

/// Private files and directories of the host layer: everything is made for the user alone.
namespace orvhost
{

/// The path as the system takes it: UTF-8.
std::filesystem::path nativePath(std::wstring const& path);

/// The extension in lower case, without the point: "step" of "/a/Part.v2.STEP", and "csv" of a file that is called
/// ".csv"; empty without one. By it files are told apart.
std::wstring extensionOf(std::wstring const& path);

/// Makes the directory and what is missing above it, mode 0700. True where it exists afterwards.
bool makeDirectory(std::filesystem::path const& path);

/// Replaces a file as a whole, mode 0600: written beside it under a temporary name and renamed, so a reader sees the
/// old content or the new one. False leaves the old file and nothing else behind.
bool replaceFile(std::filesystem::path const& path, std::string_view content);

/// By which a file that another process has written is told from the one that was read: device, inode, size, seconds
/// and nanoseconds. Zeros where there is none.
using FileStamp = std::array<std::int64_t, 5>;
FileStamp stampOf(std::filesystem::path const& path);

/// The first `limit` bytes of a file; empty where it can't be read.
std::string readFile(std::filesystem::path const& path, std::size_t limit);

} // namespace orvhost
