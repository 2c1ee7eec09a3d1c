#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace orvcloud
{

struct MailerSettings {
    std::filesystem::path dataDirectory;
    std::string smtpUrl;      ///< "smtp://host:port" or "smtps://host:port", with a user if need be; empty for none
    std::string smtpPassword; ///< for the user of the address
    std::string sender;       ///< the service's own address
    std::function<void(const std::string&)> log;
};

/// Sends mail. Without an SMTP server each mail becomes a file of "outbox". With one it is kept as a file of
/// "mailqueue" until the server has taken it, across restarts; what the server refuses for good goes to "outbox", and
/// what it can't take now is tried again after a growing while.
class Mailer
{
public:
    virtual ~Mailer() = default;
    /// Keeps the mail durably; sending may follow later. Throws StoreError.
    virtual void post(const std::string& recipient, const std::string& message) = 0;
};

std::unique_ptr<Mailer> makeMailer(MailerSettings settings);

} // namespace orvcloud
