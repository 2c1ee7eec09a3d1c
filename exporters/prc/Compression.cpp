#include "exporters/prc/Compression.h"

#include "exporters/prc/FormatError.h"

#define ZLIB_CONST
#include <zlib.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace prc
{

namespace
{

constexpr std::size_t chunk = std::size_t{1} << 18;

// zlib counts in 32 bits, and who packs wants to see progress: spans are fed in pieces.
uInt piece(std::size_t size)
{
    return static_cast<uInt>(std::min<std::size_t>(size, 1U << 20));
}

struct Inflation {
    Inflation()
    {
        if (inflateInit(&state) != Z_OK)
            throw std::runtime_error("there is not enough memory to unpack a section");
    }
    ~Inflation() { inflateEnd(&state); }
    Inflation(Inflation const&) = delete;
    Inflation& operator=(Inflation const&) = delete;
    z_stream state{};
};

struct Deflation {
    Deflation()
    {
        if (deflateInit(&state, Z_DEFAULT_COMPRESSION) != Z_OK)
            throw std::runtime_error("there is not enough memory to pack a section");
    }
    ~Deflation() { deflateEnd(&state); }
    Deflation(Deflation const&) = delete;
    Deflation& operator=(Deflation const&) = delete;
    z_stream state{};
};

} // namespace

std::vector<std::uint8_t> compressed(std::span<std::uint8_t const> content, std::function<bool(double)> const& progress)
{
    Deflation deflation;
    std::vector<std::uint8_t> result;
    std::size_t fed = 0;
    for (int outcome = Z_OK; outcome != Z_STREAM_END;) {
        std::size_t const filled = result.size();
        result.resize(filled + chunk);
        uInt const input = piece(content.size() - fed);
        deflation.state.next_in = content.data() + fed;
        deflation.state.avail_in = input;
        deflation.state.next_out = result.data() + filled;
        deflation.state.avail_out = static_cast<uInt>(chunk);
        outcome = deflate(&deflation.state, fed + input == content.size() ? Z_FINISH : Z_NO_FLUSH);
        if (outcome == Z_STREAM_ERROR)
            throw std::runtime_error("a section can't be packed");
        fed += input - deflation.state.avail_in;
        result.resize(filled + chunk - deflation.state.avail_out);
        if (progress && !progress(static_cast<double>(fed) / static_cast<double>(content.size())))
            return {};
    }
    return result;
}

std::vector<std::uint8_t> decompressed(std::span<std::uint8_t const> stream, std::size_t limit)
{
    Inflation inflation;
    std::vector<std::uint8_t> result;
    std::size_t fed = 0;
    for (int outcome = Z_OK; outcome != Z_STREAM_END;) {
        std::size_t const filled = result.size();
        std::size_t const room = std::min(chunk, limit + 1 - filled);
        result.resize(filled + room);
        uInt const input = piece(stream.size() - fed);
        inflation.state.next_in = stream.data() + fed;
        inflation.state.avail_in = input;
        inflation.state.next_out = result.data() + filled;
        inflation.state.avail_out = static_cast<uInt>(room);
        outcome = inflate(&inflation.state, Z_NO_FLUSH);
        fed += input - inflation.state.avail_in;
        result.resize(filled + room - inflation.state.avail_out);
        if (outcome == Z_BUF_ERROR)
            throw FormatError("a section breaks off");
        if (outcome != Z_OK && outcome != Z_STREAM_END)
            throw FormatError("a section is damaged");
        if (result.size() > limit)
            throw FormatError("a section is larger than a model can be");
    }
    if (fed != stream.size())
        throw FormatError("a section is followed by more than it says");
    return result;
}

} // namespace prc
