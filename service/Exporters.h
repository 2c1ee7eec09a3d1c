#pragma once

#include "host/orv/Preferences.h"
#include "host/orvexp/ExportManager.h"
#include "host/orvexp/IDelayExporter.h"

#include <windows.h>

#include <memory>

/// The settings with which a model is exported for the service: a new record on each call.
std::shared_ptr<orv::Preferences> exportPreferences();

/// Loads the viewer's exporter libraries into the manager, in their fixed order. One that is missing or unusable is
/// passed over. Dependent libraries are looked for in the deferred directory from then on.
void loadExporters(std::shared_ptr<orvexp::ExportManager> manager);

/// The exporter that prepares uploads. `module` null stands for the viewer. Never empty: without its library every save
/// comes back without a file.
std::shared_ptr<orvexp::IDelayExporter> makeDeferredExporter(HINSTANCE module);
