#pragma once

#include "host/orv/LibraryEntry.h"

#include <windows.h>

#include <string>
#include <utility>

namespace orv
{

/// Holds one object of type T that a library makes by its creating function and takes back by its destroying function.
/// A path that ends in ".dll" names the library of the same name on this platform.
template <class T>
class DLLFuncPtrHelper
{
public:
    DLLFuncPtrHelper(wchar_t const* path, char const* createName, char const* destroyName)
        : entry(path, createName, destroyName), object(static_cast<T*>(entry.makeObject()))
    {
    }
    ~DLLFuncPtrHelper() { LibraryEntry::complain(release()); }
    DLLFuncPtrHelper(DLLFuncPtrHelper const&) = delete;
    DLLFuncPtrHelper& operator=(DLLFuncPtrHelper const&) = delete;

    /// Destroys the object before the helper's end. Gives the sentence about a library that threw, else an empty one;
    /// nothing that it throws gets out.
    std::wstring release() { return entry.destroyObject(std::exchange(object, nullptr)); }

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
