#include "host/orvweb/Directories.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Files.h"
#include "host/runtime/Runtime.h"

namespace orvweb
{

std::wstring Directories::GetUserDirectoryDetails(std::wstring const& name, std::wstring const& sub)
{
    std::wstring path = orvhost::settings().dataDirectory;
    for (std::wstring const& part : {name, sub}) {
        if (!part.empty()) {
            path = orv::FileUtils::join(path, part);
        }
    }
    orvhost::makeDirectory(orvhost::nativePath(path));
    return path;
}

} // namespace orvweb
