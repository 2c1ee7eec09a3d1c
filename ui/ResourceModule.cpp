#include "ui/ResourceModule.h"

#include "service/PluginText.h"

#include <afxwin.h>

ResourceModule::ResourceModule() : previous(AfxGetResourceHandle())
{
    use();
}

ResourceModule::~ResourceModule()
{
    AfxSetResourceHandle(previous);
}

void ResourceModule::use()
{
    AfxSetResourceHandle(handle());
}

HINSTANCE ResourceModule::handle()
{
    return GetModuleHandleW(pluginLibrary);
}
