#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvcloud
{

/// Receives what MultipartReader finds. A part's begin, its data in any number of pieces, its end.
class MultipartEvents
{
public:
    virtual ~MultipartEvents() = default;
    /// `isFile` if the part carries a file name. False ends the reading.
    virtual bool beginPart(std::string_view name, bool isFile) = 0;
    virtual bool partData(std::string_view bytes) = 0;
    virtual bool endPart() = 0;
};

/// Reads `multipart/form-data` (RFC 7578) as it arrives, in pieces of any size, and keeps no more than one line of it.
class MultipartReader
{
public:
    MultipartReader(std::string_view boundary, MultipartEvents& receiver);

    /// False if the text isn't multipart of this boundary, or if an event returned false. Not to be called again then.
    bool read(std::string_view bytes);
    /// True once the closing boundary was read.
    bool complete() const { return state == State::epilogue; }

private:
    enum class State { preamble, afterBoundary, headers, data, epilogue };

    bool readSome();
    bool readHeaderLine();
    bool readData();

    std::string delimiter; // line end, two hyphens, boundary
    MultipartEvents& events;
    State state = State::preamble;
    std::string pending; // what came and isn't yet used
    std::size_t headerBytes = 0;
    std::optional<std::string> partName;
    bool partIsFile = false;
};

/// The boundary of a Content-Type header, e.g. `multipart/form-data; boundary=xyz`. Nothing for another type or a
/// boundary that RFC 2046 doesn't allow.
std::optional<std::string> multipartBoundary(std::string_view contentType);

} // namespace orvcloud
