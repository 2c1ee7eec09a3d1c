#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace prc
{

/// One bare zlib stream (RFC 1950). `progress` is called now and then with the packed part of the content, 0 to 1, and
/// ends the work by returning false; the result is empty then. Throws std::runtime_error if memory runs out.
std::vector<std::uint8_t> compressed(std::span<std::uint8_t const> content,
                                     std::function<bool(double)> const& progress = {});

/// The content of exactly one zlib stream that fills `stream`. Throws FormatError where it is damaged, incomplete,
/// followed by more, or unpacks to more than `limit` bytes.
std::vector<std::uint8_t> decompressed(std::span<std::uint8_t const> stream, std::size_t limit);

} // namespace prc
