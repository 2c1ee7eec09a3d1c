#include "host/orvexp/ExportHelper.h"

#include <utility>

namespace orvexp
{

ExportHelper::ExportHelper(std::shared_ptr<orv::DLLFuncPtrHelper<orv::IPlugin>> exporterLibrary)
    : library(std::move(exporterLibrary))
{
    if (library) {
        exporter = dynamic_cast<IExporter*>(library->get());
    }
}

wchar_t const* ExportHelper::getName()
{
    return exporter == nullptr ? L"" : exporter->getName();
}

orv::IPlugin::PluginType ExportHelper::getType()
{
    return exporterPlugin;
}

orv::GUID const& ExportHelper::id()
{
    return exporter == nullptr ? IExporter::id() : exporter->id();
}

std::shared_ptr<orv::Preferences> ExportHelper::loadPreferences(std::shared_ptr<orv::IPreferencesRegistry> registry)
{
    return exporter == nullptr ? nullptr : exporter->loadPreferences(std::move(registry));
}

void ExportHelper::savePreferences(std::shared_ptr<orv::IPreferencesRegistry> registry,
                                   std::shared_ptr<orv::Preferences> preferences)
{
    if (exporter != nullptr) {
        exporter->savePreferences(std::move(registry), std::move(preferences));
    }
}

void ExportHelper::setParent(HINSTANCE module)
{
    IExporter::setParent(module);
    if (exporter != nullptr) {
        exporter->setParent(module);
    }
}

Status ExportHelper::save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                          std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status)
{
    return exporter == nullptr ? Status::noLibrary : exporter->save(path, document, std::move(preferences), status);
}

bool ExportHelper::takes(wchar_t const* path)
{
    return exporter != nullptr && exporter->takes(path);
}

wchar_t const* ExportHelper::unwrittenBeside()
{
    return exporter == nullptr ? L"" : exporter->unwrittenBeside();
}

} // namespace orvexp
