#pragma once

#include <string>
#include <vector>

namespace orvviewer
{

/// What the program was asked to do.
struct CommandLine {
    std::wstring file; ///< empty where none was given
    std::wstring serviceUrl;
    std::wstring dataDirectory;
    std::wstring language; ///< two letters; empty stands for the system's
    std::vector<std::wstring> exports;
    std::wstring screenshot;
    bool wantsHelp = false;
    bool wantsVersion = false;
    std::wstring error; ///< a whole sentence in English (localizedSentence); empty where all is well

    /// True where no window is to be opened.
    bool isHeadless() const { return !exports.empty() || !screenshot.empty(); }
};

/// Arguments as main gets them, in UTF-8, the program's name first.
CommandLine readCommandLine(int count, char const* const* arguments);

/// What `--help` shows, in the viewer's language.
std::wstring usage();

/// The system's language as two letters, "en" where it can't be told.
std::wstring systemLanguage();

} // namespace orvviewer
