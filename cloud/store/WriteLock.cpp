#include "cloud/store/WriteLock.h"

#include "cloud/store/StoreError.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvcloud
{

WriteLock::WriteLock(const std::filesystem::path& file)
    : descriptor(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
{
    if (descriptor < 0)
        throw StoreError("The file " + file.string() + " can't be created; check the data directory's permissions.");
}

WriteLock::~WriteLock()
{
    ::close(descriptor);
}

void WriteLock::lock()
{
    threads.lock();
    while (::flock(descriptor, LOCK_EX) != 0) {
        if (errno == EINTR)
            continue;
        threads.unlock();
        throw StoreError("The data directory can't be locked; it must lie on a local file system.");
    }
}

bool WriteLock::try_lock()
{
    if (!threads.try_lock())
        return false;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return true;
    threads.unlock();
    return false;
}

void WriteLock::unlock()
{
    ::flock(descriptor, LOCK_UN);
    threads.unlock();
}

} // namespace orvcloud
