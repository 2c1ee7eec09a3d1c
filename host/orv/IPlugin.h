#pragma once

#include "host/orv/GUID.h"
#include "host/orv/IPreferencesRegistry.h"
#include "host/orv/Preferences.h"

#include <windows.h>

#include <memory>
#include <string>

namespace orv
{

/// A library that the viewer loads. It is made and destroyed by two exported functions, each of which takes the address
/// of a plug-in pointer and returns 0.
class IPlugin
{
public:
    enum PluginType { importerPlugin = 0, exporterPlugin = 1, guiPlugin = 2 };

    virtual ~IPlugin() = default;
    virtual wchar_t const* getName() = 0;
    virtual PluginType getType() = 0;
    virtual GUID const& id() { return identity; }
    virtual std::shared_ptr<Preferences> loadPreferences(std::shared_ptr<IPreferencesRegistry> registry) = 0;
    virtual void savePreferences(std::shared_ptr<IPreferencesRegistry> registry,
                                 std::shared_ptr<Preferences> preferences) = 0;
    virtual void setParent(HINSTANCE module) { parent = module; }

    /// Directory of the deferred exporters, without a closing separator. `module` null stands for the viewer.
    static std::wstring getDelayPluginPath(HINSTANCE module);
    /// Directory of the plug-ins of a type, without a closing separator.
    static std::wstring getPluginPath(HINSTANCE module, PluginType type);

protected:
    IPlugin() = default;
    /// `identityText` is the plug-in's own identity, in braces.
    explicit IPlugin(wchar_t const* identityText) : identity(identityText) {}

    HINSTANCE getParent() const { return parent; }

private:
    GUID identity;
    HINSTANCE parent = nullptr;
};

} // namespace orv
