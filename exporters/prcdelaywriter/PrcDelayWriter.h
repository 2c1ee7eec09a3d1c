#pragma once

#include "host/orvexp/IDelayExporter.h"

#include <string_view>

namespace prcdelay
{

/// Writes the open model as a PRC file. The setting "EXPORT_UNIT" chooses the unit of length of the file: 0 metres,
/// 1 millimetres, 2 centimetres, 3 inches, 4 feet; without it, and for any other choice, millimetres. The other
/// settings concern other formats.
class PrcDelayWriter final : public orvexp::IDelayExporter
{
public:
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override;
};

} // namespace prcdelay
