#pragma once

#include <string>

namespace orvcloud
{

enum class Delivery { taken, refusedForGood, tryLater };

struct SmtpServer {
    std::string url;
    std::string password; ///< empty, or the one of the address's user
};

/// Hands one message to an SMTP server and waits for its answer, two minutes at most. To any but a loopback address it
/// speaks over TLS with a verified certificate. `reason` gets a sentence if the message wasn't taken.
Delivery sendMail(const SmtpServer& server, const std::string& sender, const std::string& recipient,
                  const std::string& message, std::string& reason);

} // namespace orvcloud
