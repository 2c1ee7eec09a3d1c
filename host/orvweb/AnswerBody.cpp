#include "host/orvweb/AnswerBody.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace orvweb
{

namespace
{

constexpr std::size_t inMemory = 4 << 20;

} // namespace

bool AnswerBody::append(char const* data, std::size_t count)
{
    std::size_t const toMemory = std::min(count, inMemory - std::min(inMemory, start.size()));
    start.append(data, toMemory);
    std::size_t const toFile = count - toMemory;
    if (toFile > 0 &&
        (lost || (!rest && !openFile()) || std::fwrite(data + toMemory, 1, toFile, rest.get()) != toFile)) {
        lost = true;
        return false;
    }
    total += count;
    return true;
}

bool AnswerBody::openFile()
{
    std::error_code error;
    std::string name = (std::filesystem::temp_directory_path(error) / "orvanta-answer-XXXXXX").string();
    int const descriptor = error ? -1 : ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    ::unlink(name.c_str()); // it goes with the last descriptor, however the program ends
    rest.reset(::fdopen(descriptor, "w+b"));
    if (!rest) {
        ::close(descriptor);
    }
    return rest != nullptr;
}

std::string AnswerBody::take()
{
    if (!rest) {
        return std::move(start);
    }
    std::size_t const inStart = start.size();
    start.resize(total);
    lost = lost || std::fflush(rest.get()) != 0 || std::fseek(rest.get(), 0, SEEK_SET) != 0 ||
           std::fread(start.data() + inStart, 1, total - inStart, rest.get()) != total - inStart;
    return lost ? std::string() : std::move(start);
}

} // namespace orvweb
