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
    enum class Failure { none, missing, notALibrary, noEntryPoint, threw, madeNothing };

    LibraryEntry(wchar_t const* path, char const* createName, char const* destroyName);
    ~LibraryEntry();
    LibraryEntry(LibraryEntry const&) = delete;
    LibraryEntry& operator=(LibraryEntry const&) = delete;

    /// The library's new object; null, with failure and errorText set, where it made none or threw. Whatever it throws
    /// ends in here: a class of the library's own would outlive its code otherwise.
    void* makeObject();
    /// Gives the object back to the library. What it throws ends in here, too: the result is the sentence for it, else
    /// empty.
    std::wstring destroyObject(void* object);

    /// Writes a sentence that nobody asked for to standard error; an empty one isn't.
    static void complain(std::wstring const& sentence);

    /// Both functions take the address of a pointer to the library's object and return 0.
    using Function = int (*)(void**);

    Function create = nullptr;
    Function destroy = nullptr;
    HINSTANCE module = nullptr;
    Failure failure = Failure::none;
    std::wstring errorText; ///< whole sentences; empty while failure is none

private:
    std::wstring name; ///< of the file, for sentences
};

} // namespace orv
