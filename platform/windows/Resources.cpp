#include "Module.h"

#include <algorithm>

namespace
{
constexpr LANGID english = 0x0409;
thread_local LANGID threadLanguage = english;

// A resource's handle is its entry's address, which stays for the module's life.
HRSRC handleOf(const orvplatform::ResourceEntry* entry)
{
    return reinterpret_cast<HRSRC>(const_cast<orvplatform::ResourceEntry*>(entry));
}
const orvplatform::ResourceEntry* entryOf(void* handle)
{
    return static_cast<const orvplatform::ResourceEntry*>(handle);
}
} // namespace

const orvplatform::ResourceEntry* orvplatform::findResource(HMODULE module, LPCWSTR type, LPCWSTR name, LANGID language)
{
    if (!module)
        module = GetModuleHandleW(nullptr);
    return module->resources.find(ResourceName::of(type), ResourceName::of(name), language ? language : threadLanguage);
}

HRSRC FindResourceExW(HMODULE module, LPCWSTR type, LPCWSTR name, WORD language)
{
    return handleOf(orvplatform::findResource(module, type, name, language));
}

HRSRC FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type)
{
    return FindResourceExW(module, type, name, 0);
}

HGLOBAL LoadResource(HMODULE, HRSRC resource)
{
    return resource;
}

LPVOID LockResource(HGLOBAL resource)
{
    return resource ? const_cast<unsigned char*>(entryOf(resource)->data.data()) : nullptr;
}

DWORD SizeofResource(HMODULE, HRSRC resource)
{
    return resource ? static_cast<DWORD>(entryOf(resource)->data.size()) : 0;
}

int LoadStringW(HINSTANCE module, UINT id, LPWSTR buffer, int size)
{
    if (!buffer || size < 0)
        return 0;
    if (!module)
        module = GetModuleHandleW(nullptr);
    const std::wstring* text = module->resources.string(id, threadLanguage);
    if (size == 0) {
        *reinterpret_cast<LPCWSTR*>(buffer) = text ? text->c_str() : nullptr;
        return text ? static_cast<int>(text->size()) : 0;
    }
    const std::size_t count = text ? std::min(text->size(), static_cast<std::size_t>(size - 1)) : 0;
    if (text)
        std::copy_n(text->begin(), count, buffer);
    buffer[count] = L'\0';
    return static_cast<int>(count);
}

LANGID SetThreadUILanguage(LANGID language)
{
    threadLanguage = language ? language : english;
    return threadLanguage;
}

LANGID GetThreadUILanguage()
{
    return threadLanguage;
}
