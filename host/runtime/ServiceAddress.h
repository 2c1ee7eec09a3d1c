#pragma once

#include <string>

namespace orvhost
{

/// Tells the platform's network state which host and port the service has. An address that can't be read changes
/// nothing: requests to it fail by themselves.
void announceServiceAddress(std::wstring const& url);

} // namespace orvhost
