#pragma once

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orvexp/IDelayExporter.h"

#include <memory>

namespace orvexp
{

/// A deferred exporter in a library. Without a loaded library every save answers Status::noLibrary.
class DelayExportHelper final : public IDelayExporter
{
public:
    explicit DelayExportHelper(std::shared_ptr<orv::DLLFuncPtrHelper<IDelayExporter>> library);

    Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override;

private:
    std::shared_ptr<orv::DLLFuncPtrHelper<IDelayExporter>> library;
};

} // namespace orvexp
