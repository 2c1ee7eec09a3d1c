#include "host/orvexp/DelayExportHelper.h"

#include <utility>

namespace orvexp
{

DelayExportHelper::DelayExportHelper(std::shared_ptr<orv::DLLFuncPtrHelper<IDelayExporter>> exporterLibrary)
    : library(std::move(exporterLibrary))
{
}

Status DelayExportHelper::save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                               std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status)
{
    if (!library || !library->isValid()) {
        return Status::noLibrary;
    }
    return library->get()->save(path, document, std::move(preferences), status);
}

} // namespace orvexp
