#pragma once

#include "host/orvweb/RequestObserver.h"

#include <utility>
#include <vector>

namespace orvtest
{

/// Keeps every call of a web class while it lives.
class ObservedRequests
{
public:
    ObservedRequests()
        : before(orvweb::setRequestObserver([this](orvweb::ObservedRequest const& call) { calls.push_back(call); }))
    {
    }
    ~ObservedRequests() { orvweb::setRequestObserver(std::move(before)); }
    ObservedRequests(ObservedRequests const&) = delete;
    ObservedRequests& operator=(ObservedRequests const&) = delete;

    std::vector<orvweb::ObservedRequest> calls;

private:
    orvweb::RequestObserver before;
};

} // namespace orvtest
