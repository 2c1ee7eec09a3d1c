#include "support/WriteCalls.h"

#include <algorithm>

#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{

orvtest::WriteCalls* listener = nullptr;

}

extern "C" ssize_t write(int file, void const* data, std::size_t size)
{
    if (listener != nullptr) {
        listener->add(static_cast<char const*>(data), size);
    }
    return syscall(SYS_write, file, data, size);
}

extern "C" ssize_t writev(int file, iovec const* pieces, int count)
{
    if (listener != nullptr) {
        std::string first;
        for (int i = 0; i < count; ++i) {
            first.append(static_cast<char const*>(pieces[i].iov_base), std::min<std::size_t>(pieces[i].iov_len, 4096));
        }
        listener->add(first.data(), first.size());
    }
    return syscall(SYS_writev, file, pieces, count);
}

namespace orvtest
{

WriteCalls::WriteCalls()
{
    listener = this;
}

WriteCalls::~WriteCalls()
{
    listener = nullptr;
}

void WriteCalls::add(char const* data, std::size_t size)
{
    calls.emplace_back(data, std::min<std::size_t>(size, 4096));
}

} // namespace orvtest
