#pragma once

#include "host/orv/PluginManager.h"
#include "host/orvexp/ExportHelper.h"
#include "host/orvexp/IExporter.h"

#include <windows.h>

#include <memory>

namespace orvexp
{

/// The exporters loaded for one use.
class ExportManager : public orv::PluginManager<IExporter>
{
public:
    explicit ExportManager(HINSTANCE module); ///< null stands for the viewer

    /// The first exporter that takes the path of the file to write; empty where none does.
    std::shared_ptr<ExportHelper> getPlugin(wchar_t const* path) const;

private:
    HINSTANCE module;
};

} // namespace orvexp
