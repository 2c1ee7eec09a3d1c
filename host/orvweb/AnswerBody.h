#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace orvweb
{

/// Collects an answer while it comes in. What passes the first megabytes goes to a file without a name in the system's
/// temporary directory, so that an answer that turns out to be too large never fills the memory.
class AnswerBody
{
public:
    /// False where the file can't be made or written: the answer is lost then.
    bool append(char const* data, std::size_t count);
    std::size_t size() const { return total; } ///< bytes so far
    /// All of it. Empty, like an answer without a body, where the file can't be read back: see isLost. Call it once.
    std::string take();
    bool isLost() const { return lost; }

private:
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

    bool openFile();

    std::string start; ///< at most `inMemory` bytes
    File rest{nullptr, std::fclose};
    std::size_t total = 0;
    bool lost = false;
};

} // namespace orvweb
