#include "host/orvexp/ExportManager.h"

namespace orvexp
{

ExportManager::ExportManager(HINSTANCE parentModule) : module(parentModule) {}

std::shared_ptr<ExportHelper> ExportManager::getPlugin(wchar_t const* path) const
{
    for (std::shared_ptr<IExporter> const& plugin : plugins()) {
        auto helper = std::dynamic_pointer_cast<ExportHelper>(plugin);
        if (helper && path != nullptr && helper->takes(path)) {
            helper->setParent(module);
            return helper;
        }
    }
    return nullptr;
}

} // namespace orvexp
