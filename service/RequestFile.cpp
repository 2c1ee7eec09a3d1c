#include "service/RequestFile.h"

#include "host/orv/FileUtils.h"
#include "host/orvweb/Directories.h"

#include <windows.h>

void createEmptyFile(std::wstring const& path)
{
    HANDLE const file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
    }
}

std::wstring createRequestFile(std::wstring const& directory, std::wstring const& name)
{
    std::wstring path = orv::FileUtils::join(orvweb::Directories::GetUserDirectoryDetails(directory, L""), name);
    createEmptyFile(path);
    return path;
}
