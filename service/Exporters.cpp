#include "service/Exporters.h"

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/FileUtils.h"
#include "host/orv/IPlugin.h"
#include "host/orvexp/DelayExportHelper.h"
#include "host/orvexp/ExportHelper.h"
#include "host/orvsg/Value.h"

#include <array>
#include <string>
#include <utility>

namespace
{

/// The native format's exporter comes first: it is the one that takes a path ending in ".orvanta".
constexpr std::array exporterFiles{L"orvwriter.dll", L"3dswriter.dll",     L"bomwriter.dll", L"imgwriter.dll",
                                   L"objwriter.dll", L"stlwriter.dll",     L"pdfwriter.dll", L"prcwriter.dll",
                                   L"xmlwriter.dll", L"colladawriter.dll", L"pptwriter.dll"};

using Switch = orvsg::Value<bool, 0>;
using Choice = orvsg::Value<int, 3>;

} // namespace

std::shared_ptr<orv::Preferences> exportPreferences()
{
    auto preferences = std::make_shared<orv::Preferences>();
    preferences->add(std::make_shared<Switch>(L"COMPRESS_MOBILE_FORMAT", true), nullptr);
    preferences->add(std::make_shared<Switch>(L"IMAGE_TRANSPARENT", true), nullptr);
    preferences->add(std::make_shared<Switch>(L"ORVANTA2_MOBILE_FORMAT", true), nullptr);
    preferences->add(std::make_shared<Switch>(L"PREVIEW_IMAGE", false), nullptr);
    preferences->add(std::make_shared<Choice>(L"EXPORT_UNIT", 1), nullptr);
    preferences->add(std::make_shared<Switch>(L"IMAGE_BRANDING", false), nullptr);
    preferences->add(std::make_shared<Switch>(L"FEATURE Export", true), nullptr);
    return preferences;
}

void loadExporters(std::shared_ptr<orvexp::ExportManager> manager)
{
    // Left changed: an exporter may load what it depends on at its first save.
    SetDllDirectoryW(orv::IPlugin::getDelayPluginPath(nullptr).c_str());
    std::wstring const directory = orv::IPlugin::getPluginPath(nullptr, orv::IPlugin::exporterPlugin);
    for (wchar_t const* file : exporterFiles) {
        std::wstring const path = orv::FileUtils::join(directory, file);
        auto library =
            std::make_shared<orv::DLLFuncPtrHelper<orv::IPlugin>>(path.c_str(), "createPlugin", "destroyPlugin");
        if (library->isValid()) {
            manager->push_back(std::make_shared<orvexp::ExportHelper>(std::move(library)));
        }
    }
}

std::shared_ptr<orvexp::IDelayExporter> makeDeferredExporter(HINSTANCE module)
{
    std::wstring const path = orv::FileUtils::join(orv::IPlugin::getDelayPluginPath(module), L"prcdelaywriter.dll");
    return std::make_shared<orvexp::DelayExportHelper>(
        std::make_shared<orv::DLLFuncPtrHelper<orvexp::IDelayExporter>>(path.c_str(), "create", "destroy"));
}
