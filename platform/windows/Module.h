#pragma once
// What a module handle points to.

#include "ResourceFile.h"
#include "winbase.h"

#include <string>
#include <vector>

struct HINSTANCE__ {
    void* library = nullptr; // of dlopen; null for the program and for modules that are only a file of resources
    std::string file;
    std::wstring name; // in small letters, without directory
    int references = 0;
    orvplatform::ResourceFile resources;
};

namespace orvplatform
{
const std::vector<HMODULE>& loadedModules(); // those that were loaded or asked for, oldest first
const ResourceEntry* findResource(HMODULE module, LPCWSTR type, LPCWSTR name, LANGID language);
} // namespace orvplatform
