#pragma once

#include "host/orv/LibraryEntry.h"

#include <windows.h>

#include <string>

namespace orv
{

/// Holds one object of type T that a library makes by its creating function and takes back by its destroying function.
/// A path that ends in ".dll" names the library of the same name on this platform.
template <class T>
class DLLFuncPtrHelper
{
public:
    DLLFuncPtrHelper(wchar_t const* path, char const* createName, char const* destroyName)
        : entry(path, createName, destroyName)
    {
        if (entry.create != nullptr) {
            entry.create(reinterpret_cast<void**>(&object));
            if (object == nullptr) {
                entry.failure = LibraryEntry::Failure::madeNothing;
                entry.errorText = L"The library was loaded but made no object. Reinstall it and try again.";
            }
        }
    }
    ~DLLFuncPtrHelper()
    {
        if (object != nullptr) {
            entry.destroy(reinterpret_cast<void**>(&object));
        }
    }
    DLLFuncPtrHelper(DLLFuncPtrHelper const&) = delete;
    DLLFuncPtrHelper& operator=(DLLFuncPtrHelper const&) = delete;

    bool isValid() const { return object != nullptr; }
    T* get() const { return object; } ///< null where isValid is false
    HINSTANCE module() const { return entry.module; }
    LibraryEntry::Failure failure() const { return entry.failure; }
    std::wstring const& errorText() const { return entry.errorText; }

private:
    LibraryEntry entry;
    T* object = nullptr;
};

} // namespace orv
