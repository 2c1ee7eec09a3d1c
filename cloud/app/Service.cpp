#include "cloud/app/Service.h"

#include "cloud/api/Api.h"
#include "cloud/app/DataDirectory.h"
#include "cloud/http/Server.h"
#include "cloud/store/SqliteStore.h"

#include <mutex>
#include <stdexcept>
#include <utility>

namespace orvcloud
{
namespace
{
constexpr std::int64_t mostInvitationsInADay = 500;

/// The host of a web address, e.g. "cloud.example" of "https://cloud.example:8443/x".
std::string hostOf(const std::string& url)
{
    const auto scheme = url.find("://");
    const auto begin = scheme == std::string::npos ? 0 : scheme + 3;
    const auto end = url[begin] == '[' ? url.find(']', begin) : url.find_first_of(":/", begin);
    return url.substr(begin, end == std::string::npos ? end : end - begin);
}

std::string senderFor(const std::string& publicUrl)
{
    const std::string host = hostOf(publicUrl);
    const bool isName = host.find_first_not_of("0123456789.") != std::string::npos && host.front() != '[';
    return "no-reply@" + (isName ? host : "localhost");
}

std::string withoutSlash(std::string url)
{
    while (url.ends_with('/'))
        url.pop_back();
    return url;
}
} // namespace

class Service::Impl
{
public:
    explicit Impl(Config given)
        : config(std::move(given)), directory(config.dataDirectory, DataDirectory::Use::exclusive),
          store(openSqliteStore(config.dataDirectory)), vault(config.dataDirectory), passwords(config.hashCost),
          throttle(config.clock), invitations(config.clock, mostInvitationsInADay)
    {
        listen();
        const std::string address = scheme() + server->address();
        if (config.publicUrl.empty())
            config.publicUrl = address;
        config.publicUrl = withoutSlash(config.publicUrl);
        if (config.mailSender.empty())
            config.mailSender = senderFor(config.publicUrl);
        if (!isMailAddress(config.mailSender))
            throw std::runtime_error("\"" + config.mailSender + "\" isn't a mail address to send from.");
        mailer = makeMailer({config.dataDirectory, config.smtpUrl, config.smtpPassword, config.mailSender, config.log});
        application.api = std::make_unique<Api>(Parts{
            *store, vault, *mailer, passwords, throttle, invitations, config.clock, config.apiId, config.apiKey,
            config.publicUrl, config.mailSender, usersComeOverTls(), config.limits.uploadBytes, config.commentQuota});
        store->dropSessionsUnusedSince(config.clock() - sessionLength);
        server->start();
    }

    void stop() { server->stop(); }
    std::string url() const { return scheme() + server->address(); }

private:
    /// The port is known only after the server listens, and the requests need it for the links they send.
    struct Behind final : Application {
        std::unique_ptr<Api> api;
        Admission admit(const RequestHead& head) override { return api->admit(head); }
    };

    void listen()
    {
        // Connections and the mailer write lines at the same time.
        config.log = [sink = std::move(config.log), mutex = std::make_shared<std::mutex>()](const std::string& line) {
            const std::lock_guard guard(*mutex);
            if (sink)
                sink(line);
        };
        server = std::make_unique<Server>(ServerSettings{config.listen, config.tlsCertificate, config.tlsKey,
                                                         config.limits, config.behindProxy, config.log, config.clock},
                                          application);
    }

    bool usersComeOverTls() const
    {
        return config.behindProxy || !config.tlsCertificate.empty() || config.publicUrl.starts_with("https://");
    }

    std::string scheme() const { return config.tlsCertificate.empty() ? "http://" : "https://"; }

    Config config;
    DataDirectory directory;
    std::unique_ptr<Store> store;
    FileVault vault;
    Passwords passwords;
    Throttle throttle;
    DailyCount invitations;
    std::unique_ptr<Mailer> mailer;
    Behind application;
    std::unique_ptr<Server> server;
};

Service::Service(Config config)
{
    prepareSecrets();
    impl = std::make_unique<Impl>(std::move(config));
}

Service::~Service() = default;

void Service::stop()
{
    impl->stop();
}

std::string Service::url() const
{
    return impl->url();
}

} // namespace orvcloud
