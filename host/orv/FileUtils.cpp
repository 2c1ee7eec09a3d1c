#include "host/orv/FileUtils.h"

#include "host/orv/FilePath.h"
#include "host/runtime/DataDirectories.h"
#include "host/runtime/Files.h"
#include "host/runtime/Runtime.h"

namespace orv
{

std::wstring FileUtils::getTempPath()
{
    return orvhost::temporaryDirectory();
}

bool FileUtils::getAppDataPath(std::wstring& path)
{
    path = orvhost::settings().dataDirectory;
    return orvhost::makeDirectory(orvhost::nativePath(path));
}

std::wstring FileUtils::getStatusFileName(wchar_t const* path)
{
    FilePath const parts(path);
    return parts.getFName() + parts.getExt();
}

std::wstring FileUtils::join(std::wstring const& directory, std::wstring const& name)
{
    if (directory.empty()) {
        return name;
    }
    auto const lastOfDirectory = directory.find_last_not_of(L'/');
    auto const firstOfName = name.find_first_not_of(L'/');
    std::wstring joined = lastOfDirectory == std::wstring::npos ? L"" : directory.substr(0, lastOfDirectory + 1);
    joined += L'/';
    if (firstOfName != std::wstring::npos) {
        joined += name.substr(firstOfName);
    }
    return joined;
}

} // namespace orv
