#pragma once

#include "host/orv/IPlugin.h"
#include "host/orvexp/IDelayExporter.h"

namespace orvexp
{

/// An exporter plug-in.
class IExporter : public orv::IPlugin, public IDelayExporter
{
public:
    /// True where the exporter writes files of that path's extension; letter case is ignored.
    virtual bool takes(wchar_t const* path) = 0;
    /// Where the last save failed by a file that the format puts beside the wanted one: that file's path. Empty
    /// otherwise. It lives until the next save.
    virtual wchar_t const* unwrittenBeside() { return L""; }
};

} // namespace orvexp
