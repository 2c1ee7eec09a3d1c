#pragma once

#include "host/orv/IHint.h"

namespace orv
{

/// Whoever wants to be told of hints.
class IView
{
public:
    virtual ~IView() = default;
    virtual void OnUpdate(IHint* hint) = 0; ///< `hint` may be null and lives for the call only
};

} // namespace orv
