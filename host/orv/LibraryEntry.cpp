#include "host/orv/LibraryEntry.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Files.h"
#include "platform/Process.h"
#include "platform/text/Text.h"

#include <exception>
#include <filesystem>
#include <iostream>
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

/// Runs the call; false where something was thrown, with the first line of what it says. The exception is gone by the
/// time this returns.
template <class Call>
bool runs(Call&& call, std::wstring& reason)
{
    try {
        call();
        return true;
    } catch (std::exception const& exception) {
        std::string const text(exception.what());
        reason = orvtext::fromUtf8(text.substr(0, text.find_first_of("\r\n")));
    } catch (...) {
        reason.clear();
    }
    return false;
}

/// The end of a sentence that may have a reason.
std::wstring because(std::wstring const& reason)
{
    return reason.empty() ? L"." : L": \"" + reason + L"\".";
}

} // namespace

LibraryEntry::LibraryEntry(wchar_t const* path, char const* createName, char const* destroyName)
{
    std::wstring const file(path == nullptr ? L"" : path);
    name = FileUtils::getStatusFileName(platformName(file).c_str());
    module = LoadLibraryW(file.c_str());
    if (module == nullptr) {
        std::error_code error;
        bool const isThere = std::filesystem::exists(orvhost::nativePath(platformName(file)), error);
        failure = isThere ? Failure::notALibrary : Failure::missing;
        errorText = isThere ? L"The library \"" + name + L"\" can't be loaded" + because(orvplatform::lastModuleError())
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

void* LibraryEntry::makeObject()
{
    if (create == nullptr) {
        return nullptr;
    }
    void* object = nullptr;
    std::wstring reason;
    if (!runs([&] { create(&object); }, reason)) {
        failure = Failure::threw;
        errorText = L"The library \"" + name + L"\" failed to start" + because(reason) + advice;
        return nullptr;
    }
    if (object == nullptr) {
        failure = Failure::madeNothing;
        errorText = L"The library \"" + name + L"\" made no object." + advice;
    }
    return object;
}

std::wstring LibraryEntry::destroyObject(void* object)
{
    std::wstring reason;
    if (object == nullptr || runs([&] { destroy(&object); }, reason)) {
        return {};
    }
    return L"The library \"" + name + L"\" failed to end" + because(reason) +
           L" Save your work and start Orvanta anew.";
}

void LibraryEntry::complain(std::wstring const& sentence)
{
    if (!sentence.empty()) {
        std::cerr << orvtext::toUtf8(sentence) << std::endl;
    }
}

LibraryEntry::~LibraryEntry()
{
    if (module != nullptr) {
        FreeLibrary(module);
    }
}

} // namespace orv
