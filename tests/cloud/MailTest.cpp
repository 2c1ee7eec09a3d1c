#include "cloud/mail/Invitation.h"
#include "cloud/mail/Mailer.h"
#include "cloud/mail/Smtp.h"

#include "cloud/RunningService.h"
#include "cloud/base/Secret.h"
#include "cloud/base/Text.h"

#include <boost/asio.hpp>
#include <condition_variable>
#include <fstream>
#include <gmock/gmock.h>
#include <sodium.h>
#include <thread>

using namespace orvcloud;
using ::testing::HasSubstr;
namespace asio = boost::asio;

namespace
{
const Invitation invitation{"bob@example.org",     "\xC3\x84nn",        "ann@example.org",   "brä\r\ncket.step",
                            "Have a look\nBcc: x", "http://s/shared/1", "no-reply@s.example"};

/// Speaks just enough SMTP for one mail a connection, and keeps what it was sent.
class MailServer
{
public:
    explicit MailServer(std::string dataAnswer) : answer(std::move(dataAnswer)), thread([this] { serve(); }) {}

    ~MailServer()
    {
        stopping = true;
        asio::io_context local;
        asio::ip::tcp::socket last(local);
        boost::system::error_code ignored;
        last.connect(acceptor.local_endpoint(), ignored);
        thread.join();
    }

    std::string url() const { return "smtp://127.0.0.1:" + std::to_string(acceptor.local_endpoint().port()); }

    std::string waitForMail()
    {
        std::unique_lock guard(mutex);
        arrived.wait_for(guard, std::chrono::seconds(20), [this] { return !text.empty(); });
        return text;
    }

private:
    void serve()
    {
        while (!stopping) {
            asio::ip::tcp::socket socket(context);
            acceptor.accept(socket);
            if (!stopping)
                converse(socket);
        }
    }

    void converse(asio::ip::tcp::socket& socket)
    {
        std::string buffer;
        std::string session;
        boost::system::error_code error;
        const auto say = [&](const std::string& line) { asio::write(socket, asio::buffer(line + "\r\n"), error); };
        say("220 here");
        while (!error) {
            const auto size = asio::read_until(socket, asio::dynamic_buffer(buffer), "\r\n", error);
            if (error)
                break;
            const std::string line = buffer.substr(0, size);
            buffer.erase(0, size);
            session += line;
            if (line.starts_with("DATA")) {
                say("354 go on");
                const auto all = asio::read_until(socket, asio::dynamic_buffer(buffer), "\r\n.\r\n", error);
                session += buffer.substr(0, all);
                buffer.erase(0, all);
                {
                    const std::lock_guard guard(mutex);
                    text = session;
                }
                arrived.notify_all();
                say(answer);
            } else if (line.starts_with("QUIT")) {
                say("221 bye");
                break;
            } else {
                say("250 fine");
            }
        }
    }

    std::string answer;
    asio::io_context context;
    asio::ip::tcp::acceptor acceptor{context, {asio::ip::address_v4::loopback(), 0}};
    std::mutex mutex;
    std::condition_variable arrived;
    std::string text;
    std::atomic<bool> stopping = false;
    std::thread thread;
};

/// The subject of a header whose encoded words are all in base64 of UTF-8.
std::string decodedSubject(const std::string& header)
{
    const auto begin = header.find("\r\nSubject: ") + 11;
    std::string words = header.substr(begin, header.find("\r\nMessage-ID") - begin);
    std::string text;
    for (auto at = words.find("=?UTF-8?B?"); at != std::string::npos; at = words.find("=?UTF-8?B?", at + 1)) {
        const std::string encoded = words.substr(at + 10, words.find("?=", at + 10) - at - 10);
        std::string bytes(encoded.size(), '\0');
        std::size_t size = 0;
        EXPECT_EQ(sodium_base642bin(reinterpret_cast<unsigned char*>(bytes.data()), bytes.size(), encoded.data(),
                                    encoded.size(), nullptr, &size, nullptr, sodium_base64_VARIANT_ORIGINAL),
                  0);
        EXPECT_TRUE(isUtf8(bytes.substr(0, size))) << "cut inside a character";
        text += bytes.substr(0, size);
    }
    return text;
}

std::size_t filesIn(const std::filesystem::path& folder)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

bool eventually(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
    return condition();
}
} // namespace

TEST(Mail, AnInvitationIsAMessage)
{
    prepareSecrets();
    const std::string mail = invitationMail(invitation, 1'800'000'000);
    EXPECT_TRUE(mail.starts_with("Date: Fri, 15 Jan 2027 08:00:00 +0000\r\n"));
    const std::string header = mail.substr(0, mail.find("\r\n\r\n"));
    EXPECT_THAT(header, HasSubstr("\r\nTo: <bob@example.org>\r\n"));
    EXPECT_THAT(header, HasSubstr("\r\nReply-To: <ann@example.org>\r\n"));
    EXPECT_THAT(header, HasSubstr("<no-reply@s.example>\r\n"));
    EXPECT_EQ(decodedSubject(header), "\xC3\x84nn has shared br\xC3\xA4\r\ncket.step with you");
    EXPECT_EQ(header.find("Bcc"), std::string::npos);
    for (std::size_t at = 0; at < mail.size();) {
        const auto end = mail.find('\n', at);
        EXPECT_LE(end - at, 77U) << "76 characters and the line end's first"; // RFC 2047, section 2
        EXPECT_EQ(mail[end - 1], '\r');
        at = end + 1;
    }
    const std::string body = mail.substr(header.size() + 4);
    EXPECT_EQ(body.substr(0, 24), base64("\xC3\x84nn (ann@example."));
}

TEST(Mail, ALongSubjectIsFoldedBetweenCharacters)
{
    prepareSecrets();
    Invitation longest = invitation;
    longest.inviterName = "";
    for (int i = 0; i < 60; ++i)
        longest.inviterName += "\xE6\xA8\xA1\xF0\x9F\x98\x80";
    longest.modelName = std::string(255, 'm');
    longest.sender = "no-reply@" + std::string(60, 'h') + ".example";
    const std::string mail = invitationMail(longest, 1'800'000'000);
    const std::string header = mail.substr(0, mail.find("\r\n\r\n") + 2);
    EXPECT_EQ(decodedSubject(header), longest.inviterName + " has shared " + longest.modelName + " with you");
    for (std::size_t at = 0; at < header.size();) {
        const auto end = header.find("\r\n", at);
        const std::string line = header.substr(at, end - at);
        if (line.find("=?") != std::string::npos) {
            EXPECT_LE(line.size(), 76U) << line;
        }
        at = end + 2;
    }
}

TEST(Mail, LineBreaksInANameMakeNoHeader)
{
    prepareSecrets();
    Invitation tricky = invitation;
    tricky.inviterName = "Ann\r\nBcc: eve@example.org\r\n\r\nfree text";
    const std::string mail = invitationMail(tricky, 1'800'000'000);
    const std::string header = mail.substr(0, mail.find("\r\n\r\n"));
    EXPECT_EQ(mail.find("Bcc"), std::string::npos);
    EXPECT_EQ(mail.find("free text"), std::string::npos);
    EXPECT_THAT(header, HasSubstr("\r\nContent-Transfer-Encoding: base64"));
}

TEST(Mail, ASilentServerDoesntHoldTheServiceUp)
{
    prepareSecrets();
    asio::io_context context;
    asio::ip::tcp::acceptor silent(context, {asio::ip::address_v4::loopback(), 0});
    const orvcloud::testing::TemporaryDirectory directory;
    const std::string url = "smtp://127.0.0.1:" + std::to_string(silent.local_endpoint().port());
    auto mailer = makeMailer({directory.path, url, "", "no-reply@x.org", [](const std::string&) {}});
    mailer->post("bob@example.org", "Subject: x\r\n\r\nkept\r\n");
    asio::ip::tcp::socket socket(context);
    silent.accept(socket); // the mailer waits for a greeting now
    const auto began = std::chrono::steady_clock::now();
    mailer.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(10));
    EXPECT_EQ(filesIn(directory.path / "mailqueue"), 1U) << "the mail is for the next start";
}

TEST(Mail, WithoutAServerAMailIsAFile)
{
    prepareSecrets();
    const orvcloud::testing::TemporaryDirectory directory;
    const auto mailer = makeMailer({directory.path, "", "", "no-reply@x.org", [](const std::string&) {}});
    mailer->post("bob@example.org", "the mail");
    ASSERT_EQ(filesIn(directory.path / "outbox"), 1U);
    const auto file = std::filesystem::directory_iterator(directory.path / "outbox")->path();
    EXPECT_EQ(file.extension(), ".eml");
    std::ifstream stream(file);
    std::string text;
    std::getline(stream, text);
    EXPECT_EQ(text, "the mail");
}

TEST(Mail, GoesToTheServer)
{
    prepareSecrets();
    MailServer server("250 taken");
    const orvcloud::testing::TemporaryDirectory directory;
    const auto mailer = makeMailer({directory.path, server.url(), "", "no-reply@x.org", [](const std::string&) {}});
    mailer->post("bob@example.org", "Subject: x\r\n\r\ntext\r\n");
    const std::string text = server.waitForMail();
    EXPECT_THAT(text, HasSubstr("MAIL FROM:<no-reply@x.org>"));
    EXPECT_THAT(text, HasSubstr("RCPT TO:<bob@example.org>"));
    EXPECT_THAT(text, HasSubstr("Subject: x\r\n\r\ntext\r\n.\r\n"));
    EXPECT_TRUE(eventually([&] { return filesIn(directory.path / "mailqueue") == 0; }));
    EXPECT_EQ(filesIn(directory.path / "outbox"), 0U);
}

TEST(Mail, ThatIsRefusedForGoodIsLeftInTheOutbox)
{
    prepareSecrets();
    MailServer server("554 never");
    const orvcloud::testing::TemporaryDirectory directory;
    const auto mailer = makeMailer({directory.path, server.url(), "", "no-reply@x.org", [](const std::string&) {}});
    mailer->post("bob@example.org", "Subject: x\r\n\r\ntext\r\n");
    EXPECT_TRUE(eventually([&] { return filesIn(directory.path / "mailqueue") == 0; }));
    EXPECT_EQ(filesIn(directory.path / "outbox"), 1U);
}

TEST(Mail, OutlivesAServerThatIsDown)
{
    prepareSecrets();
    const orvcloud::testing::TemporaryDirectory directory;
    std::atomic<int> lines = 0;
    {
        const auto mailer = makeMailer(
            {directory.path, "smtp://127.0.0.1:1", "", "no-reply@x.org", [&](const std::string&) { ++lines; }});
        mailer->post("bob@example.org", "Subject: x\r\n\r\nkept\r\n");
        EXPECT_TRUE(eventually([&] { return lines > 0; }));
    }
    ASSERT_EQ(filesIn(directory.path / "mailqueue"), 1U);
    MailServer server("250 taken");
    const auto mailer = makeMailer({directory.path, server.url(), "", "no-reply@x.org", [](const std::string&) {}});
    EXPECT_THAT(server.waitForMail(), HasSubstr("kept"));
}
