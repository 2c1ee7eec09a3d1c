#pragma once

#include "host/orv/OmniInfo.h"

#include <functional>
#include <string>

namespace orvweb
{

/// One call of a web class, as the plug-in made it.
struct ObservedRequest {
    std::string operation; ///< class and operation, e.g. "GetAPI::get"
    std::wstring root;     ///< what the class was made with
    orv::OmniInfo record;
};

using RequestObserver = std::function<void(ObservedRequest const&)>;

/// Told of every call before it goes out, also of one that can't; tests compare whole records with it. An empty one
/// watches no more. Returns the one before.
RequestObserver setRequestObserver(RequestObserver observer);

} // namespace orvweb
