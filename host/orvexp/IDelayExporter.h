#pragma once

#include "host/orvexp/Status.h"

#include <memory>

namespace orv
{
class IDocument;
class IStatusManager;
class Preferences;
} // namespace orv

namespace orvexp
{

/// The channel of the progress bar on which an exporter reports how far it is. It neither shows nor hides the bar: a
/// save shows it for this channel, while a push shows it for its own course, which the export's stays out of.
constexpr int exportChannel = 2;

/// Writes a document to a file.
class IDelayExporter
{
public:
    virtual ~IDelayExporter() = default;

    /// `preferences` may be empty: the exporter's own defaults hold then. `status` may be null: no progress is shown
    /// then.
    virtual Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) = 0;
};

} // namespace orvexp
