#pragma once

#include <string>

/// What a run of the viewer (or a test) tells the host layer once, before anything of it is used.
namespace orvhost
{

struct Settings {
    std::wstring dataDirectory; ///< the user's data; empty stands for the platform's per-user data directory
    std::wstring
        libraryDirectory;    ///< where the libraries of the viewer lie, in the folders "gui", "export" and "delay"
    std::wstring serviceUrl; ///< empty stands for the build's own; a closing slash is dropped
    std::wstring language = L"en"; ///< two letters; anything without texts of its own is answered in English
    double dpi = 96.0;             ///< the display's logical resolution
};

/// Takes the settings over: language, image sizes, service address and directories follow at once.
void configure(Settings settings);
Settings const& settings();

} // namespace orvhost
