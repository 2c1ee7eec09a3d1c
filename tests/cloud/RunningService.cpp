#include "cloud/RunningService.h"

#include "cloud/app/Users.h"

#include <cstdlib>
#include <fstream>
#include <json/reader.h>
#include <json/value.h>
#include <sstream>

namespace orvcloud::testing
{
const std::string formType = "application/x-www-form-urlencoded";

namespace
{
std::filesystem::path makeDirectory()
{
    std::string name = (std::filesystem::temp_directory_path() / "orvanta-cloud-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("no temporary directory");
    return name;
}

Fields standardFields(const std::string& email, const Fields& more)
{
    Fields fields{{"name", ORVANTA_API_ID}, {"username", email}};
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}
} // namespace

TemporaryDirectory::TemporaryDirectory() : path(makeDirectory()) {}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

RunningService::RunningService()
{
    config.dataDirectory = directory.path / "data";
    config.listen = "127.0.0.1:0";
    config.hashCost = {1, 8192};
    config.clock = [clock = now] { return clock->load(); };
    config.log = [this](const std::string& line) {
        const std::lock_guard guard(logMutex);
        logged += line + "\n";
    };
    for (const std::string name : {"ann", "bob", "eve"})
        addUser(config, name + "@example.org", "\xC3\x84" + name, name + "'s password");
    start();
}

RunningService::~RunningService()
{
    service.reset();
}

void RunningService::start()
{
    service = std::make_unique<Service>(config);
    url = service->url();
}

void RunningService::stop()
{
    service.reset();
}

Reply RunningService::login(const std::string& email, const std::string& password)
{
    return sendRequest(url, "POST", "/api/Login/", {{"X-Api-Key", ORVANTA_API_KEY}, {"Content-Type", formType}},
                       encodeForm(standardFields(email, {{"password", password}})));
}

SignedIn RunningService::signIn(const std::string& name)
{
    const Reply reply = login(name + "@example.org", name + "'s password");
    EXPECT_EQ(reply.status, 200) << reply.body;
    const auto cookie = reply.headers.find("set-cookie");
    if (cookie == reply.headers.end())
        throw std::runtime_error("the login set no cookie");
    return {name + "@example.org", reply.body, cookie->second.substr(0, cookie->second.find(';'))};
}

Fields RunningService::standardHeaders(const SignedIn& user)
{
    return {{"X-Api-Key", ORVANTA_API_KEY}, {"Authorization", "Bearer " + user.token}};
}

Reply RunningService::get(const SignedIn& user, const std::string& path, const Fields& fields)
{
    return sendRequest(url, "GET", path + "?" + encodeForm(standardFields(user.email, fields)), standardHeaders(user));
}

Reply RunningService::post(const SignedIn& user, const std::string& path, const Fields& fields)
{
    Fields headers = standardHeaders(user);
    headers.emplace_back("Content-Type", formType);
    return sendRequest(url, "POST", path, headers, encodeForm(standardFields(user.email, fields)));
}

Reply RunningService::postWithCookie(const SignedIn& user, const std::string& path, const Fields& fields)
{
    return sendRequest(url, "POST", path,
                       {{"X-Api-Key", ORVANTA_API_KEY}, {"Content-Type", formType}, {"Cookie", user.cookie}},
                       encodeForm(standardFields(user.email, fields)));
}

Reply RunningService::upload(const SignedIn& user, const std::string& fileName, const std::string& content,
                             const std::string& path, const std::string& type)
{
    Fields headers = standardHeaders(user);
    headers.emplace_back("Content-Type", "multipart/form-data; boundary=the-boundary");
    const Fields fields = standardFields(user.email, {{"type", type}, {"filename", fileName}});
    return sendRequest(url, "POST", path, headers, encodeMultipart(fields, &content, "the-boundary"));
}

std::string RunningService::push(const SignedIn& user, const std::string& fileName)
{
    const Reply reply = upload(user, fileName, "PRC of " + fileName);
    EXPECT_EQ(reply.status, 200) << reply.body;
    return reply.body;
}

Reply RunningService::comment(const SignedIn& user, const std::string& jobId, const std::string& commentId,
                              const std::string& record)
{
    return post(user, "/api/CommentSync/",
                {{"jobid", jobId}, {"commentid", commentId}, {"comment", record}, {"filename", "x.step"}});
}

std::vector<std::string> RunningService::feed(const SignedIn& user, const std::string& jobId)
{
    const Reply reply = get(user, "/api/CommentSync/", {{"jobid", jobId}});
    EXPECT_EQ(reply.status, 200) << reply.body;
    Json::Value root;
    std::istringstream stream(reply.body);
    EXPECT_TRUE(Json::parseFromStream(Json::CharReaderBuilder(), stream, &root, nullptr)) << reply.body;
    std::vector<std::string> contents;
    for (const Json::Value& element : root)
        contents.push_back(element["Content"].asString());
    return contents;
}

Reply RunningService::share(const SignedIn& user, const std::string& jobId, const std::string& to,
                            const std::string& message)
{
    return post(user, "/api/Share/", {{"fileid", jobId}, {"shareto", to}, {"comment", message}});
}

std::vector<std::string> RunningService::outbox() const
{
    std::vector<std::string> mails;
    for (const auto& entry : std::filesystem::directory_iterator(config.dataDirectory / "outbox")) {
        std::ifstream stream(entry.path(), std::ios::binary);
        mails.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return mails;
}

std::string RunningService::logText()
{
    const std::lock_guard guard(logMutex);
    return logged;
}

} // namespace orvcloud::testing
