#pragma once

#include <windows.h>

/// Makes the plug-in's library the module in which the toolkit looks for dialogs and images, for the guard's life.
class ResourceModule
{
public:
    ResourceModule();
    ~ResourceModule();
    ResourceModule(ResourceModule const&) = delete;
    ResourceModule& operator=(ResourceModule const&) = delete;

    /// The same, for good.
    static void use();
    /// The handle of the plug-in's library; null while it isn't loaded.
    static HINSTANCE handle();

private:
    HINSTANCE previous;
};
