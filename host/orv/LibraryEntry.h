#pragma once

#include <windows.h>

#include <string>

namespace orv
{

/// Loads a library, finds its two entry points and keeps both for its own life. What every DLLFuncPtrHelper shares.
class LibraryEntry
{
public:
    /// Why a library can't be used.
    enum class Failure { none, missing, notALibrary, noEntryPoint, madeNothing };

    LibraryEntry(wchar_t const* path, char const* createName, char const* destroyName);
    ~LibraryEntry();
    LibraryEntry(LibraryEntry const&) = delete;
    LibraryEntry& operator=(LibraryEntry const&) = delete;

    /// Both functions take the address of a pointer to the library's object and return 0.
    using Function = int (*)(void**);

    Function create = nullptr;
    Function destroy = nullptr;
    HINSTANCE module = nullptr;
    Failure failure = Failure::none;
    std::wstring errorText; ///< a whole sentence; empty while failure is none
};

} // namespace orv
