#pragma once

namespace orv
{

/// The result of a web operation. Zero means that the exchange succeeded; the plug-in tells no other values apart.
enum class ErrorCode : int {
    none = 0,
    invalidRequest = 1,  ///< no head token, or a service address that isn't http or https
    insecureAddress = 2, ///< plain http to an address that isn't loopback
    unreachable = 3,     ///< no connection in time
    broken = 4,          ///< the transfer broke off or was too slow
    refused = 5,         ///< any status but 200
    tooLarge = 6,        ///< the answer passed the size limit
    unreadableFile = 7   ///< the file to send can't be read
};

} // namespace orv
