#pragma once

#include "cloud/Client.h"
#include "cloud/app/Service.h"

#include <atomic>
#include <filesystem>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <vector>

namespace orvcloud::testing
{

/// A directory that goes with this object.
class TemporaryDirectory
{
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path path;
};

struct SignedIn {
    std::string email;
    std::string token;
    std::string cookie; ///< "orvanta_session=..."
};

/// A real service on a free loopback port over a real database, with a clock of its own and cheap password hashes.
/// ann, bob and eve have accounts at example.org; the password of each is "<name>'s password".
class RunningService : public ::testing::Test
{
protected:
    RunningService();
    ~RunningService() override;

    void start();
    void stop();

    SignedIn signIn(const std::string& name);
    Reply login(const std::string& email, const std::string& password);

    /// Sends `fields` behind "name", "username", as the table of the protocol has it, with the token and the key.
    Reply get(const SignedIn& user, const std::string& path, const Fields& fields);
    Reply post(const SignedIn& user, const std::string& path, const Fields& fields);
    /// With the session's cookie in place of the token.
    Reply postWithCookie(const SignedIn& user, const std::string& path, const Fields& fields);

    Reply upload(const SignedIn& user, const std::string& fileName, const std::string& content,
                 const std::string& path = "/api/UploadInput/", const std::string& type = "prc");
    /// The job id of a model that was just pushed.
    std::string push(const SignedIn& user, const std::string& fileName);
    Reply comment(const SignedIn& user, const std::string& jobId, const std::string& commentId,
                  const std::string& record);
    /// The "Content" of each element of a model's feed.
    std::vector<std::string> feed(const SignedIn& user, const std::string& jobId);
    Reply share(const SignedIn& user, const std::string& jobId, const std::string& to, const std::string& message);
    std::vector<std::string> outbox() const;

    static Fields standardHeaders(const SignedIn& user);
    std::string logText();

    TemporaryDirectory directory;
    Config config;
    std::shared_ptr<std::atomic<std::int64_t>> now = std::make_shared<std::atomic<std::int64_t>>(1'800'000'000);
    std::unique_ptr<Service> service;
    std::string url;

private:
    std::mutex logMutex;
    std::string logged;
};

extern const std::string formType;

} // namespace orvcloud::testing
