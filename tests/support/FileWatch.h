#pragma once

#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace orvtest
{

/// Tells what happened to one existing file while this object lives: "open", "read", "write", "close", in order. The
/// system joins the same event repeated in a row.
class FileWatch
{
public:
    explicit FileWatch(std::filesystem::path const& file) : queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(inotify_add_watch(queue, file.c_str(), IN_OPEN | IN_ACCESS | IN_MODIFY | IN_CLOSE), 0) << file;
    }
    ~FileWatch() { ::close(queue); }
    FileWatch(FileWatch const&) = delete;
    FileWatch& operator=(FileWatch const&) = delete;

    /// The events since the last call.
    std::vector<std::string> events()
    {
        std::vector<std::string> result;
        std::array<char, 65536> buffer{};
        ssize_t count = 0;
        while ((count = ::read(queue, buffer.data(), buffer.size())) > 0) {
            for (std::size_t at = 0; at < static_cast<std::size_t>(count);) {
                inotify_event event{};
                std::memcpy(&event, buffer.data() + at, sizeof event);
                result.push_back(nameOf(event.mask));
                at += sizeof event + event.len;
            }
        }
        return result;
    }

private:
    static std::string nameOf(std::uint32_t mask)
    {
        if ((mask & IN_OPEN) != 0) {
            return "open";
        }
        if ((mask & IN_ACCESS) != 0) {
            return "read";
        }
        return (mask & IN_MODIFY) != 0 ? "write" : "close";
    }

    int queue;
};

} // namespace orvtest
