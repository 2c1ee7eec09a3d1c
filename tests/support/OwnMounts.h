#pragma once

#include <fstream>
#include <string>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace orvtest
{

/// Gives this process mounts of its own, which end with it. Who isn't root becomes root of a name space first. Works
/// before there is a second thread. False where this user may not.
inline bool takeOwnMounts()
{
    auto const write = [](char const* file, std::string const& text) { std::ofstream(file) << text; };
    uid_t const user = getuid();
    gid_t const group = getgid();
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
            return false;
        }
        write("/proc/self/setgroups", "deny");
        write("/proc/self/uid_map", "0 " + std::to_string(user) + " 1");
        write("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace orvtest
