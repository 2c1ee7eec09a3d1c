#pragma once

#include <string>

/// What a run of the viewer (or a test) tells the host layer once, before anything of it is used.
namespace orvhost
{

struct Settings {
    /// The user's data; empty stands for the platform's per-user data directory.
    std::wstring dataDirectory;
    /// Where the libraries of the viewer lie, in the folders "gui", "export" and "delay".
    std::wstring libraryDirectory;
    /// Empty stands for the build's own; a closing slash is dropped.
    std::wstring serviceUrl;
    /// Two letters; anything without texts of its own is answered in English.
    std::wstring language = L"en";
    /// The display's logical resolution.
    double dpi = 96.0;
};

/// Takes the settings over: language, image sizes, service address and directories follow at once.
void configure(Settings settings);
Settings const& settings();

} // namespace orvhost
