#pragma once

#include <string>

namespace orvsg
{

/// One named setting.
class IValue
{
public:
    virtual ~IValue() = default;
    virtual std::wstring const& name() const = 0;
};

} // namespace orvsg
