#pragma once

#include "cloud/accounts/Passwords.h"
#include "cloud/base/Text.h"
#include "cloud/http/Limits.h"
#include "cloud/store/Store.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace orvcloud
{

/// How a service is set up. What is left at its default suits one machine.
struct Config {
    std::filesystem::path dataDirectory;
    std::string listen = "127.0.0.1:8640";
    std::string publicUrl;      ///< where users reach it; empty for the address that it listens on
    std::string smtpUrl;        ///< empty: invitations become files of the data directory's "outbox"
    std::string smtpPassword;   ///< for the user that the address names
    std::string mailSender;     ///< empty: "no-reply" at the public address's host
    std::string tlsCertificate; ///< PEM files; empty for plain HTTP
    std::string tlsKey;
    bool behindProxy = false; ///< a proxy that speaks TLS stands in front and names its clients in X-Forwarded-For
    std::string apiId = ORVANTA_API_ID;
    std::string apiKey = ORVANTA_API_KEY;
    HashCost hashCost;
    Limits limits;
    CommentQuota commentQuota;
    Clock clock = systemClock();
    std::function<void(const std::string&)> log; ///< one line each; called from any thread, one call at a time
};

/// The whole service in one object. It runs from its construction to `stop` or its destruction.
class Service
{
public:
    /// Throws std::runtime_error with a sentence if the data directory is in use, or it, the address or the certificate
    /// can't be used.
    explicit Service(Config config);
    ~Service();
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    void stop();
    /// The address with its scheme and actual port, e.g. "http://127.0.0.1:8640".
    std::string url() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace orvcloud
