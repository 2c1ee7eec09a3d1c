#include "host/runtime/Runtime.h"

#include "host/runtime/DataDirectories.h"
#include "host/runtime/Files.h"
#include "host/runtime/Languages.h"
#include "host/runtime/ServiceAddress.h"
#include "platform/text/Text.h"

#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

#include <dlfcn.h>

namespace orvhost
{

namespace
{

/// The folder that this very library was loaded from.
std::wstring ownDirectory()
{
    Dl_info where{};
    if (dladdr(reinterpret_cast<void*>(&ownDirectory), &where) == 0 || where.dli_fname == nullptr) {
        return L".";
    }
    std::error_code error;
    auto const file = std::filesystem::absolute(where.dli_fname, error);
    return orvtext::fromUtf8(error ? std::string(".") : file.parent_path().string());
}

/// A directory given on the command line stays the same one wherever the program goes.
std::wstring absolute(std::wstring const& directory)
{
    std::error_code error;
    auto const path = std::filesystem::absolute(nativePath(directory), error);
    return error ? directory : orvtext::fromUtf8(path.string());
}

void dropClosing(std::wstring& text)
{
    while (text.size() > 1 && text.back() == L'/') {
        text.pop_back();
    }
}

Settings completed(Settings settings)
{
    if (settings.dataDirectory.empty()) {
        settings.dataDirectory = platformDataDirectory();
    }
    if (settings.libraryDirectory.empty()) {
        settings.libraryDirectory = ownDirectory();
    }
    if (settings.serviceUrl.empty()) {
        settings.serviceUrl = orvtext::fromUtf8(ORVANTA_SERVICE_URL);
    }
    for (std::wstring* const directory : {&settings.dataDirectory, &settings.libraryDirectory}) {
        *directory = absolute(*directory);
        dropClosing(*directory);
    }
    dropClosing(settings.serviceUrl);
    settings.language = languageCode(settings.language);
    if (!std::isfinite(settings.dpi) || settings.dpi <= 0.0) {
        settings.dpi = 96.0;
    }
    return settings;
}

Settings& current()
{
    static Settings instance = completed({});
    return instance;
}

} // namespace

void configure(Settings settings)
{
    current() = completed(std::move(settings));
    useLanguage(current().language);
    useResolution(current().dpi);
    announceServiceAddress(current().serviceUrl);
}

Settings const& settings()
{
    return current();
}

} // namespace orvhost
