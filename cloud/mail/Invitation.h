#pragma once

#include <cstdint>
#include <string>

namespace orvcloud
{

struct Invitation {
    std::string recipient;
    std::string inviterName;
    std::string inviterAddress;
    std::string modelName;
    std::string message; ///< may be empty
    std::string link;
    std::string sender; ///< the service's own address
};

/// The invitation as an Internet message (RFC 5322, MIME), with CRLF line ends. Texts are UTF-8; whatever they hold,
/// they can't add a header or a recipient.
std::string invitationMail(const Invitation& invitation, std::int64_t now);

} // namespace orvcloud
