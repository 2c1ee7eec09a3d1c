#pragma once

#include <stop_token>
#include <string>

namespace orvcloud
{

enum class Delivery { taken, refusedForGood, tryLater };

struct SmtpServer {
    std::string url;
    std::string password; ///< empty, or the one of the address's user
};

/// Hands one message to an SMTP server and waits for its answer, two minutes at most, and no longer than about a second
/// once `stop` is requested: then the message is for later. To any but a loopback address it
/// speaks over TLS with a verified certificate. `reason` gets a sentence if the message wasn't taken.
Delivery sendMail(const SmtpServer& server, const std::string& sender, const std::string& recipient,
                  const std::string& message, const std::stop_token& stop, std::string& reason);

} // namespace orvcloud
