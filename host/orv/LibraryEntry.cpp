#include "host/orv/LibraryEntry.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Files.h"
#include "platform/Process.h"
#include "platform/text/Text.h"

#include <filesystem>
#include <system_error>

namespace orv
{

namespace
{

constexpr wchar_t const* advice = L" Install Orvanta again and start it anew.";

/// The name under which this platform has the library.
std::wstring platformName(std::wstring path)
{
    if (path.size() >= 4 && path.substr(path.size() - 4) == L".dll") {
        path.replace(path.size() - 4, 4, L".so");
    }
    return path;
}

LibraryEntry::Function entryPoint(HINSTANCE module, char const* name)
{
    FARPROC const address = name == nullptr ? nullptr : GetProcAddress(module, name);
    return reinterpret_cast<LibraryEntry::Function>(reinterpret_cast<void (*)()>(address));
}

} // namespace

LibraryEntry::LibraryEntry(wchar_t const* path, char const* createName, char const* destroyName)
{
    std::wstring const file(path == nullptr ? L"" : path);
    std::wstring const name = FileUtils::getStatusFileName(platformName(file).c_str());
    module = LoadLibraryW(file.c_str());
    if (module == nullptr) {
        std::error_code error;
        bool const isThere = std::filesystem::exists(orvhost::nativePath(platformName(file)), error);
        failure = isThere ? Failure::notALibrary : Failure::missing;
        errorText = isThere ? L"The library \"" + name + L"\" can't be loaded: " + orvplatform::lastModuleError()
                            : L"The library \"" + name + L"\" is missing.";
        errorText += advice;
        return;
    }
    create = entryPoint(module, createName);
    destroy = entryPoint(module, destroyName);
    if (create == nullptr || destroy == nullptr) {
        char const* const absent = create == nullptr ? createName : destroyName;
        failure = Failure::noEntryPoint;
        errorText = L"The library \"" + name + L"\" lacks the function \"" +
                    orvtext::fromUtf8(absent == nullptr ? "" : absent) + L"\"." + advice;
        create = destroy = nullptr;
        FreeLibrary(module);
        module = nullptr;
    }
}

LibraryEntry::~LibraryEntry()
{
    if (module != nullptr) {
        FreeLibrary(module);
    }
}

} // namespace orv
