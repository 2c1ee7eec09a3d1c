#include "cloud/mail/Mailer.h"

#include "cloud/base/Secret.h"
#include "cloud/mail/Smtp.h"
#include "cloud/store/FileVault.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <sstream>
#include <system_error>
#include <thread>
#include <utility>

namespace orvcloud
{
namespace
{
constexpr std::chrono::seconds firstPause{30};
constexpr std::chrono::seconds longestPause{3600};

class OutboxMailer final : public Mailer
{
public:
    explicit OutboxMailer(const MailerSettings& settings) : outbox(settings.dataDirectory / "outbox")
    {
        makePrivateDirectory(outbox);
    }

    void post(const std::string&, const std::string& message) override
    {
        writeDurably(outbox / (randomUuid() + ".eml"), message);
    }

private:
    std::filesystem::path outbox;
};

/// A file of the queue holds the recipient in its first line and the message behind it.
class SmtpMailer final : public Mailer
{
public:
    explicit SmtpMailer(MailerSettings mailerSettings)
        : settings(std::move(mailerSettings)), queue(settings.dataDirectory / "mailqueue"),
          outbox(settings.dataDirectory / "outbox")
    {
        makePrivateDirectory(queue);
        makePrivateDirectory(outbox);
        sender = std::jthread([this](const std::stop_token& stop) { sendAll(stop); });
    }

    void post(const std::string& recipient, const std::string& message) override
    {
        writeDurably(queue / (randomUuid() + ".mail"), recipient + "\n" + message);
        const std::lock_guard guard(mutex);
        posted = true;
        changed.notify_one();
    }

private:
    void sendAll(const std::stop_token& stop)
    {
        auto pause = firstPause;
        while (!stop.stop_requested()) {
            {
                const std::lock_guard guard(mutex);
                posted = false;
            }
            const bool done = sendQueue(stop);
            pause = done ? firstPause : std::min(longestPause, pause * 2);
            std::unique_lock guard(mutex);
            if (done)
                changed.wait(guard, stop, [this] { return posted; });
            else
                changed.wait_for(guard, stop, pause, [] { return false; });
        }
    }

    /// False if a mail is left to be tried again.
    bool sendQueue(const std::stop_token& stop)
    {
        bool done = true;
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator(queue, ignored)) {
            if (stop.stop_requested())
                return false;
            if (entry.path().extension() != ".mail")
                continue;
            try {
                done = sendFile(entry.path(), stop) && done;
            } catch (const std::exception& error) {
                settings.log(std::string("error: ") + error.what());
                done = false;
            }
        }
        return done;
    }

    bool sendFile(const std::filesystem::path& file, const std::stop_token& stop)
    {
        std::ifstream stream(file, std::ios::binary);
        std::string recipient;
        std::getline(stream, recipient);
        std::ostringstream rest;
        rest << stream.rdbuf();
        std::string reason;
        const Delivery delivery =
            sendMail({settings.smtpUrl, settings.smtpPassword}, settings.sender, recipient, rest.str(), stop, reason);
        if (delivery != Delivery::taken)
            settings.log("error: " + reason);
        if (delivery == Delivery::tryLater)
            return false;
        if (delivery == Delivery::refusedForGood)
            writeDurably(outbox / file.filename().replace_extension(".eml"), rest.str());
        std::filesystem::remove(file);
        return true;
    }

    MailerSettings settings;
    std::filesystem::path queue;
    std::filesystem::path outbox;
    std::mutex mutex;
    std::condition_variable_any changed;
    bool posted = false;
    std::jthread sender; // last: it uses all of the above
};
} // namespace

std::unique_ptr<Mailer> makeMailer(MailerSettings settings)
{
    if (settings.smtpUrl.empty())
        return std::make_unique<OutboxMailer>(settings);
    return std::make_unique<SmtpMailer>(std::move(settings));
}

} // namespace orvcloud
