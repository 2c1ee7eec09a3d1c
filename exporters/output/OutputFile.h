#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace orvexport
{

/// Why a file can't be written, as the system says it.
class OutputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A file that replaces the one of its name as a whole, or not at all: it is written under a temporary name in the same
/// directory and put in place at the end. Without that nothing is left behind. A link is followed: what it names is
/// replaced. All errors are thrown as OutputError.
class OutputFile
{
public:
    /// Made before the work, so that a folder that takes no file, a folder of that name and a read-only file are found
    /// at once.
    explicit OutputFile(std::filesystem::path const& wanted);
    ~OutputFile();
    OutputFile(OutputFile const&) = delete;
    OutputFile& operator=(OutputFile const&) = delete;

    void write(void const* bytes, std::size_t count);
    void write(std::string_view text) { write(text.data(), text.size()); }
    std::uint64_t position() const { return at; }
    std::uint64_t size() const { return end; }
    /// The next write begins there; what already stands there is overwritten.
    void seek(std::uint64_t position);

    /// The file stands under its own name from here on.
    void putInPlace();

private:
    std::filesystem::path target;
    std::filesystem::path name;
    int descriptor = -1;
    std::uint64_t at = 0;
    std::uint64_t end = 0;
    bool kept = false;
};

} // namespace orvexport
