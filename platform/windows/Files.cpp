#include "winbase.h"

#include "platform/text/Text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace
{
thread_local DWORD lastError = ERROR_SUCCESS;

DWORD errorOf(int number)
{
    switch (number) {
    case ENOENT:
        return ERROR_FILE_NOT_FOUND;
    case ENOTDIR:
        return ERROR_PATH_NOT_FOUND;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return ERROR_ACCESS_DENIED;
    case EEXIST:
        return ERROR_ALREADY_EXISTS;
    case ENOTEMPTY:
        return ERROR_DIR_NOT_EMPTY;
    default:
        return ERROR_GEN_FAILURE;
    }
}

// A backslash is a letter of a name here, as it is for streams.
std::string platformPath(LPCWSTR path)
{
    return orvtext::toUtf8(path ? path : L"");
}

// Success of a call that answers 0, with the error number kept.
BOOL succeeded(int answer)
{
    if (answer != 0)
        SetLastError(errorOf(errno));
    return answer == 0;
}

// A handle carries the descriptor plus one, so that descriptor 0 is not the null handle.
HANDLE handleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(descriptor) + 1);
}
} // namespace

DWORD GetLastError()
{
    return lastError;
}
void SetLastError(DWORD error)
{
    lastError = error;
}

HANDLE CreateFileW(LPCWSTR path, DWORD access, DWORD, LPSECURITY_ATTRIBUTES, DWORD disposition, DWORD, HANDLE)
{
    int flags = O_CLOEXEC;
    flags |= (access & GENERIC_READ) && (access & GENERIC_WRITE) ? O_RDWR
             : access & GENERIC_WRITE                            ? O_WRONLY
                                                                 : O_RDONLY;
    switch (disposition) {
    case CREATE_NEW:
        flags |= O_CREAT | O_EXCL;
        break;
    case CREATE_ALWAYS:
        flags |= O_CREAT | O_TRUNC;
        break;
    case OPEN_ALWAYS:
        flags |= O_CREAT;
        break;
    case TRUNCATE_EXISTING:
        flags |= O_TRUNC;
        break;
    case OPEN_EXISTING:
        break;
    default:
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    const int descriptor = open(platformPath(path).c_str(), flags, 0600);
    if (descriptor < 0) {
        SetLastError(errno == EEXIST ? ERROR_FILE_EXISTS : errorOf(errno));
        return INVALID_HANDLE_VALUE;
    }
    return handleOf(descriptor);
}

BOOL CloseHandle(HANDLE handle)
{
    if (!handle || handle == INVALID_HANDLE_VALUE) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    return succeeded(close(static_cast<int>(reinterpret_cast<LONG_PTR>(handle) - 1)));
}

BOOL DeleteFileW(LPCWSTR path)
{
    return succeeded(unlink(platformPath(path).c_str()));
}
BOOL CreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES)
{
    return succeeded(mkdir(platformPath(path).c_str(), 0700));
}
BOOL RemoveDirectoryW(LPCWSTR path)
{
    return succeeded(rmdir(platformPath(path).c_str()));
}

BOOL GetComputerNameW(LPWSTR buffer, LPDWORD size)
{
    char bytes[256] = {}; // longer than any that a system of today knows
    if (!buffer || !size || !succeeded(gethostname(bytes, sizeof bytes)))
        return FALSE;
    const std::wstring name = orvtext::fromUtf8(bytes);
    if (name.size() + 1 > *size) {
        *size = static_cast<DWORD>(name.size() + 1);
        SetLastError(ERROR_BUFFER_OVERFLOW);
        return FALSE;
    }
    std::copy(name.begin(), name.end(), buffer);
    buffer[name.size()] = L'\0';
    *size = static_cast<DWORD>(name.size());
    return TRUE;
}

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const LONGLONG product = LONGLONG{number} * numerator;
    const LONGLONG half = std::abs(LONGLONG{denominator}) / 2;
    return static_cast<int>((product < 0) != (denominator < 0)
                                ? (product - (product < 0 ? half : -half)) / denominator
                                : (product + (product < 0 ? -half : half)) / denominator);
}
