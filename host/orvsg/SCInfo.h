#pragma once

#include "host/orvsg/Schema.h"

#include <cstdint>
#include <string>
#include <utility>

namespace orvsg
{

/// What the open model is, key 8.
class SCInfo : public Schema
{
public:
    static constexpr short key = 8;
    static constexpr std::int32_t notPushable = 1; ///< value of pushState for a document that stays on this machine
    static constexpr std::int32_t part = 0;        ///< value of documentKind
    static constexpr std::int32_t assembly = 1;    ///< value of documentKind

    /// Path of the open model; empty when the model has no file. Valid until the next setFile.
    wchar_t const* file() const { return path.c_str(); }
    void setFile(std::wstring value) { path = std::move(value); }

    std::int32_t pushState = 0;
    std::int32_t documentKind = part;

private:
    std::wstring path;
};

} // namespace orvsg
