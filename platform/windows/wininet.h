#pragma once
#include "windef.h"

inline constexpr DWORD INTERNET_CONNECTION_LAN = 2;
inline constexpr DWORD INTERNET_CONNECTION_OFFLINE = 0x20;

// True when the system has a route to the service's address (orvplatform::setServiceAddress). No packet is sent.
// `flags` may be null; the second argument is reserved.
BOOL InternetGetConnectedState(LPDWORD flags, DWORD reserved);
