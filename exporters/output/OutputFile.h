#pragma once

#include "host/orvexp/Status.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orvexport
{

/// Why a file can't be written: as an outcome of the save, and in the system's or the library's words.
class OutputError : public std::runtime_error
{
public:
    OutputError(orvexp::Status outcome, std::string const& words, std::filesystem::path const& path = {})
        : std::runtime_error(words), reason(outcome), unwritten(path)
    {
    }
    explicit OutputError(std::string const& words) : OutputError(orvexp::Status::cannotWrite, words) {}
    orvexp::Status status() const { return reason; }
    /// The file in question, as it was asked for; empty where the reason lies with no file.
    std::filesystem::path const& file() const { return unwritten; }

private:
    orvexp::Status reason;
    std::filesystem::path unwritten;
};

/// A file that replaces the one of its name as a whole, or not at all: it is written under a temporary name in the same
/// directory and put in place at the end. Without that nothing is left behind. A link is followed: what it names is
/// replaced. All errors are thrown as OutputError.
class OutputFile
{
public:
    /// Made before the work, so that a folder that takes no file, a folder of that name, a read-only file and a name
    /// that is too long are found at once.
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

    /// The file stands under its own name from here on, and its content on the disk: after a power failure there is
    /// the old file or the new one, whole.
    void putInPlace() { putInPlace({this}); }
    /// The same for files that belong together, in that order: where one can't be put in place, those before it give
    /// way again to what they replaced.
    static void putInPlace(std::vector<OutputFile*> const& files);

private:
    void finish(); ///< content on the disk, under the temporary name
    void replace(bool withWayBack);
    void keepEarlier();
    void dropEarlier();
    void giveWay();
    [[noreturn]] void fail(int error) const;
    [[noreturn]] void fail(int error, orvexp::Status status) const;

    std::filesystem::path asked;  ///< as it was asked for
    std::filesystem::path target; ///< behind its links
    std::filesystem::path name;
    std::filesystem::path earlier; ///< second name of the file that was replaced; empty without a way back
    int descriptor = -1;
    std::uint64_t at = 0;
    std::uint64_t end = 0;
    bool kept = false;
};

} // namespace orvexport
