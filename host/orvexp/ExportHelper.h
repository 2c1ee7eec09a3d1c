#pragma once

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orvexp/IExporter.h"

#include <memory>

namespace orvexp
{

/// An exporter plug-in in a library. Without a usable exporter behind it a save answers Status::noLibrary and no path
/// is taken.
class ExportHelper final : public IExporter
{
public:
    explicit ExportHelper(std::shared_ptr<orv::DLLFuncPtrHelper<orv::IPlugin>> library);

    wchar_t const* getName() override;
    PluginType getType() override;
    orv::GUID const& id() override;
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry> registry) override;
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry> registry,
                         std::shared_ptr<orv::Preferences> preferences) override;
    void setParent(HINSTANCE module) override;
    Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override;
    bool takes(wchar_t const* path) override;
    wchar_t const* unwrittenBeside() override;

private:
    std::shared_ptr<orv::DLLFuncPtrHelper<orv::IPlugin>> library;
    IExporter* exporter = nullptr; ///< the library's object, where it is an exporter
};

} // namespace orvexp
