#include "support/ComputerName.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/utsname.h>
#include <unistd.h>

namespace
{

bool isSet = false;
char const* set = nullptr;

} // namespace

extern "C" int gethostname(char* buffer, std::size_t size) noexcept
{
    utsname system{};
    uname(&system);
    char const* const name = isSet ? set : system.nodename;
    if (name == nullptr) {
        errno = EFAULT;
        return -1;
    }
    std::size_t const length = std::strlen(name);
    std::copy(name, name + std::min(length, size), buffer);
    if (length >= size) {
        errno = ENAMETOOLONG;
        return -1;
    }
    buffer[length] = '\0';
    return 0;
}

namespace orvtest
{

ComputerName::ComputerName(char const* name)
{
    isSet = true;
    set = name;
}

ComputerName::~ComputerName()
{
    isSet = false;
}

} // namespace orvtest
