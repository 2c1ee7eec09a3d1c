#include "Module.h"

#include "platform/Process.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <cwctype>
#include <filesystem>
#include <memory>
#include <set>
#include <string_view>

namespace orvplatform
{
namespace
{
struct Registry {
    std::vector<std::unique_ptr<HINSTANCE__>> owned;
    std::vector<HMODULE> list;
    std::wstring directory;
};
Registry& registry()
{
    static Registry modules;
    return modules;
}
thread_local std::wstring moduleError;

// The library's name on this platform: ".so" for ".dll".
std::wstring platformPath(std::wstring path)
{
    if (path.size() > 4 && wcscasecmp(path.c_str() + path.size() - 4, L".dll") == 0)
        path.replace(path.size() - 4, 4, L".so");
    return path;
}

std::wstring moduleName(const std::wstring& path)
{
    std::wstring name = platformPath(path);
    name.erase(0, name.find_last_of(L'/') + 1);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))); });
    return name;
}

// The file of that bare name in the directory that SetDllDirectoryW named; empty where there is none.
std::string inDllDirectory(const std::wstring& name)
{
    if (name.empty() || name.find(L'/') != std::wstring::npos || registry().directory.empty())
        return {};
    const std::string file = orvtext::toUtf8(registry().directory + L"/" + name);
    std::error_code error;
    return std::filesystem::exists(file, error) ? file : std::string();
}

// What the system's loader says of a file, without the file's own path in front. A library that it depends on stays
// named.
std::string withoutFile(const std::string& reason, const std::string& file)
{
    const std::string own = file + ": ";
    return reason.compare(0, own.size(), own) == 0 ? reason.substr(own.size()) : reason;
}

// Loads a library and what it depends on. The system's loader knows nothing of the directory that SetDllDirectoryW
// named, but it takes a dependency that is loaded already, whatever its folder. `tried` are the files that were begun:
// libraries may depend on one another in a circle.
void* open(const std::string& file, std::set<std::string>& tried)
{
    constexpr std::string_view missing = ": cannot open shared object file";
    std::vector<void*> dependencies;
    void* library = nullptr;
    tried.insert(file);
    while (!(library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL))) {
        const char* const text = dlerror();
        const std::string reason = text ? text : "unknown reason";
        const std::size_t end = reason.find(missing);
        const std::string dependency =
            end == std::string::npos ? std::string() : inDllDirectory(orvtext::fromUtf8(reason.substr(0, end)));
        void* const opened = dependency.empty() || tried.count(dependency) ? nullptr : open(dependency, tried);
        if (!opened) {
            moduleError = orvtext::fromUtf8(withoutFile(reason, file));
            break;
        }
        dependencies.push_back(opened);
    }
    // The library holds them from here on.
    for (void* const each : dependencies)
        dlclose(each);
    return library;
}

HMODULE add(void* library, const std::string& file, const std::wstring& name)
{
    bool readable = false;
    auto module = std::make_unique<HINSTANCE__>();
    module->library = library;
    module->file = file;
    module->name = moduleName(name);
    module->references = 1;
    module->resources = ResourceFile(readResources(file, readable));
    registry().list.push_back(module.get());
    registry().owned.push_back(std::move(module));
    return registry().list.back();
}

HMODULE program()
{
    static HMODULE const module = [] {
        std::error_code error;
        const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
        HMODULE made = add(nullptr, path.string(), orvtext::fromUtf8(path.filename().string()));
        return made;
    }();
    return module;
}

// A library that the program loaded by other means, such as one that it is linked with.
HMODULE findLinked(const std::wstring& name)
{
    struct Search {
        std::wstring name;
        std::string file;
    } search{name, {}};
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* data) {
            auto& wanted = *static_cast<Search*>(data);
            const std::wstring own = moduleName(orvtext::fromUtf8(info->dlpi_name ? info->dlpi_name : ""));
            if (own.empty() || (own != wanted.name && own != L"lib" + wanted.name))
                return 0;
            wanted.file = info->dlpi_name;
            return 1;
        },
        &search);
    return search.file.empty() ? nullptr : add(dlopen(search.file.c_str(), RTLD_NOLOAD | RTLD_NOW), search.file, name);
}
} // namespace

const std::vector<HMODULE>& loadedModules()
{
    return registry().list;
}

std::wstring lastModuleError()
{
    return moduleError;
}

bool registerModuleFile(const std::wstring& name, const std::string& file)
{
    bool readable = false;
    readResources(file, readable);
    if (!readable)
        return false;
    // A later registration of the same name takes the earlier one's place; handles of the earlier one stay good.
    std::erase_if(registry().list, [&](HMODULE module) { return module->name == moduleName(name); });
    add(nullptr, file, name);
    return true;
}
} // namespace orvplatform

using namespace orvplatform;

HMODULE LoadLibraryW(LPCWSTR path)
{
    moduleError.clear();
    const std::wstring wanted = platformPath(path ? path : L"");
    const std::string known = inDllDirectory(wanted);
    const std::string file = known.empty() ? orvtext::toUtf8(wanted) : known;
    void* library = nullptr;
    if (file.empty()) {
        moduleError = L"no name was given";
    } else {
        std::set<std::string> tried;
        library = open(file, tried);
    }
    if (!library) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    for (HMODULE module : registry().list) {
        if (module->library == library) {
            ++module->references;
            return module;
        }
    }
    return add(library, file, orvtext::fromUtf8(file));
}

BOOL FreeLibrary(HMODULE module)
{
    auto& modules = registry();
    const auto known = std::find(modules.list.begin(), modules.list.end(), module);
    if (known == modules.list.end() || !module->library)
        return FALSE;
    dlclose(module->library);
    if (--module->references == 0) {
        modules.list.erase(known);
        std::erase_if(modules.owned, [module](const auto& each) { return each.get() == module; });
    }
    return TRUE;
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name)
{
    if (!module || !name)
        return nullptr;
    void* symbol = dlsym(module->library ? module->library : RTLD_DEFAULT, name);
    if (!symbol)
        SetLastError(ERROR_PROC_NOT_FOUND);
    return reinterpret_cast<FARPROC>(symbol);
}

HMODULE GetModuleHandleW(LPCWSTR name)
{
    HMODULE self = program();
    if (!name)
        return self;
    const std::wstring wanted = moduleName(name);
    for (HMODULE module : registry().list)
        if (module->name == wanted)
            return module;
    HMODULE linked = findLinked(wanted);
    if (!linked)
        SetLastError(ERROR_MOD_NOT_FOUND);
    return linked;
}

DWORD GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD size)
{
    const std::wstring path = orvtext::fromUtf8((module ? module : program())->file);
    if (!buffer || size == 0)
        return 0;
    const std::size_t count = std::min<std::size_t>(path.size(), size - 1);
    std::copy_n(path.begin(), count, buffer);
    buffer[count] = L'\0';
    return static_cast<DWORD>(count < path.size() ? size : count);
}

BOOL SetDllDirectoryW(LPCWSTR path)
{
    registry().directory = platformPath(path ? path : L"");
    return TRUE;
}
