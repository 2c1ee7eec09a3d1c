#include "cloud/RunningService.h"

#include "cloud/app/CommandLine.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace orvcloud;
using namespace orvcloud::testing;
using ::testing::HasSubstr;

namespace
{
const std::string program = std::string(ORV_BINARY_DIR) + "/bin/orvanta-cloud";

/// The real program, as a process of its own.
class Process
{
public:
    Process(std::vector<std::string> arguments, const std::string& input)
    {
        int in[2];
        int out[2];
        if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        arguments.insert(arguments.begin(), program);
        id = ::fork();
        if (id == 0) {
            ::dup2(in[0], 0);
            ::dup2(out[1], 1);
            ::dup2(out[1], 2);
            std::vector<char*> pointers;
            for (std::string& argument : arguments)
                pointers.push_back(argument.data());
            pointers.push_back(nullptr);
            ::execv(program.c_str(), pointers.data());
            ::_exit(127);
        }
        ::close(in[0]);
        ::close(out[1]);
        output = out[0];
        if (::write(in[1], input.data(), input.size()) != static_cast<ssize_t>(input.size()))
            throw std::runtime_error("the program takes no input");
        ::close(in[1]);
    }

    ~Process()
    {
        ::close(output);
        if (id > 0) {
            ::kill(id, SIGKILL);
            ::waitpid(id, nullptr, 0);
        }
    }

    std::string readLine()
    {
        std::string line;
        char c = 0;
        while (::read(output, &c, 1) == 1 && c != '\n')
            line += c;
        return line;
    }

    pid_t processId() const { return id; }
    void signal(int number) { ::kill(id, number); }

    int exitCode()
    {
        int status = 0;
        ::waitpid(id, &status, 0);
        id = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t id = 0;
    int output = -1;
};

struct Program : ::testing::Test {
    TemporaryDirectory directory;
    std::string data = (directory.path / "deep" / "data").string();

    int run(const std::vector<std::string>& arguments, const std::string& input = "")
    {
        std::istringstream in(input);
        out.str("");
        err.str("");
        return runCommandLine(arguments, in, out, err);
    }

    std::ostringstream out;
    std::ostringstream err;
};
} // namespace

TEST_F(Program, ServesAnAccountThatWasAddedAndStopsOnSigterm)
{
    Process add({"user", "add", "ann@example.org", "--name", "Ann", "--password-stdin", "--data", data},
                "correct horse\n");
    EXPECT_EQ(add.readLine(), "The account ann@example.org was added.");
    EXPECT_EQ(add.exitCode(), 0);

    Process service({"serve", "--listen", "127.0.0.1:0", "--data", data}, "");
    const std::string ready = service.readLine();
    const std::string begin = "orvanta-cloud is ready on http://127.0.0.1:";
    ASSERT_TRUE(ready.starts_with(begin)) << ready;
    const std::string url = ready.substr(ready.find("http"));
    const Reply reply = sendRequest(
        url, "POST", "/api/Login/", {{"X-Api-Key", ORVANTA_API_KEY}, {"Content-Type", formType}},
        encodeForm({{"name", ORVANTA_API_ID}, {"username", "ann@example.org"}, {"password", "correct horse"}}));
    EXPECT_EQ(reply.status, 200) << reply.body;

    Process second({"serve", "--listen", "127.0.0.1:0", "--data", data}, "");
    EXPECT_THAT(second.readLine(), HasSubstr("in use by another orvanta-cloud"));
    EXPECT_EQ(second.exitCode(), 1);
    Process sameAddress({"serve", "--listen", url.substr(7), "--data", data + "2"}, "");
    EXPECT_THAT(sameAddress.readLine(), HasSubstr("Can't listen on " + url.substr(7)));
    EXPECT_EQ(sameAddress.exitCode(), 1);

    service.signal(SIGTERM);
    EXPECT_EQ(service.exitCode(), 0);
    Process again({"serve", "--listen", "127.0.0.1:0", "--data", data}, "");
    EXPECT_TRUE(again.readLine().starts_with(begin));
    again.signal(SIGINT);
    EXPECT_EQ(again.exitCode(), 0);
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(data).permissions(), perms::owner_all);
    EXPECT_EQ(std::filesystem::status(data + "/cloud.db").permissions(), perms::owner_read | perms::owner_write);
}

TEST_F(Program, SpeaksTls)
{
    const std::string key = directory.path / "key.pem";
    const std::string certificate = directory.path / "cert.pem";
    const std::string make = "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=localhost "
                             "-addext subjectAltName=IP:127.0.0.1 -days 2 -keyout " +
                             key + " -out " + certificate + " 2>/dev/null";
    if (std::system(make.c_str()) != 0)
        GTEST_SKIP() << "skipped: there is no openssl to make a certificate with";
    Process service({"serve", "--listen", "127.0.0.1:0", "--data", data, "--tls-cert", certificate, "--tls-key", key,
                     "--public-url", "http://cloud.example"},
                    "");
    const std::string ready = service.readLine();
    ASSERT_TRUE(ready.starts_with("orvanta-cloud is ready on https://127.0.0.1:")) << ready;
    const std::string address = ready.substr(ready.find("https://") + 8);
    const std::string answer = directory.path / "answer";
    const std::string ask = "printf 'GET /shared/x HTTP/1.1\\r\\nHost: x\\r\\nConnection: close\\r\\n\\r\\n' | "
                            "openssl s_client -quiet -verify_return_error -CAfile " +
                            certificate + " -connect " + address + " > " + answer + " 2>/dev/null";
    EXPECT_EQ(std::system(ask.c_str()), 0);
    std::ifstream stream(answer);
    std::string line;
    std::getline(stream, line);
    EXPECT_EQ(line, "HTTP/1.1 200 OK\r");

    const std::string logout =
        "printf 'POST /api/Logout/ HTTP/1.1\\r\\nHost: x\\r\\nConnection: close\\r\\nX-Api-Key: " +
        std::string(ORVANTA_API_KEY) + "\\r\\nContent-Type: " + formType +
        "\\r\\nContent-Length: " + std::to_string(std::string("name=" ORVANTA_API_ID).size()) +
        "\\r\\n\\r\\nname=" ORVANTA_API_ID "' | openssl s_client -quiet -CAfile " + certificate + " -connect " +
        address + " > " + answer + " 2>/dev/null";
    EXPECT_EQ(std::system(logout.c_str()), 0);
    std::ifstream second(answer);
    std::string whole{std::istreambuf_iterator<char>(second), {}};
    EXPECT_THAT(whole, HasSubstr("; Secure\r\n")) << "over TLS, whatever the public address says";

    RawConnection plain("http://" + address);
    plain.send("GET /shared/x HTTP/1.1\r\nHost: x\r\n\r\n");
    EXPECT_EQ(plain.receive().status, 0) << "plain HTTP gets no answer";
    service.signal(SIGTERM);
    EXPECT_EQ(service.exitCode(), 0);
}

TEST_F(Program, SendsNoPasswordInPlainTextOverTheNetwork)
{
    for (const char* address : {"0.0.0.0:0", "[::]:0", ":0", "192.0.2.1:0", "127.example.org:0"}) {
        EXPECT_EQ(run({"serve", "--listen", address, "--data", data}), 2) << address;
        EXPECT_THAT(err.str(), HasSubstr("--behind-proxy")) << address;
    }
    std::string error;
    EXPECT_TRUE(readCommandLine({"serve", "--listen", "localhost:0", "--data", data}, error)) << error;
    EXPECT_TRUE(readCommandLine({"serve", "--listen", "0.0.0.0:0", "--behind-proxy", "--data", data}, error)) << error;
    EXPECT_TRUE(
        readCommandLine({"serve", "--listen", "0.0.0.0:0", "--tls-cert", "c", "--tls-key", "k", "--data", data}, error))
        << error;
    Process service({"serve", "--listen", "0.0.0.0:0", "--behind-proxy", "--data", data}, "");
    EXPECT_TRUE(service.readLine().starts_with("orvanta-cloud is ready on http://0.0.0.0:"));
}

TEST_F(Program, TakesAsManyDescriptorsAsItNeeds)
{
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    if (before.rlim_max < 8192)
        GTEST_SKIP() << "skipped: the system concedes too few descriptors";
    const rlimit few{256, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    Process service({"serve", "--listen", "127.0.0.1:0", "--data", data}, "");
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    ASSERT_TRUE(service.readLine().starts_with("orvanta-cloud is ready"));
    rlimit raised{};
    ASSERT_EQ(::prlimit(service.processId(), RLIMIT_NOFILE, nullptr, &raised), 0);
    EXPECT_GE(raised.rlim_cur, 8192U);
}

TEST_F(Program, SaysWhatIsWrongWithItsFiles)
{
    Process missing({"serve", "--listen", "127.0.0.1:0", "--data", data, "--tls-cert", "nowhere.pem", "--tls-key", "x"},
                    "");
    EXPECT_THAT(missing.readLine(), HasSubstr("nowhere.pem can't be used"));
    EXPECT_EQ(missing.exitCode(), 1);
    Process half({"serve", "--listen", "127.0.0.1:0", "--data", data, "--tls-cert", "nowhere.pem"}, "");
    EXPECT_THAT(half.readLine(), HasSubstr("both --tls-cert and --tls-key"));
    Process noPort({"serve", "--listen", "127.0.0.1", "--data", data}, "");
    EXPECT_THAT(noPort.readLine(), HasSubstr("lacks a port"));
    std::ofstream(directory.path / "file") << "x";
    Process noDirectory({"serve", "--data", (directory.path / "file").string()}, "");
    EXPECT_THAT(noDirectory.readLine(), HasSubstr("can't be created"));
}

TEST_F(Program, ManagesUsers)
{
    EXPECT_EQ(
        run({"user", "add", "ann@example.org", "--name", "Ann", "--password-stdin", "--data", data}, "long enough\r\n"),
        0);
    EXPECT_EQ(
        run({"user", "add", "ANN@example.org", "--name", "Ann", "--password-stdin", "--data", data}, "long enough"), 1);
    EXPECT_THAT(err.str(), HasSubstr("There is an account for ANN@example.org already"));
    EXPECT_EQ(run({"user", "add", "bob@example.org", "--name", "Bob", "--password-stdin", "--data", data}, "short"), 1);
    EXPECT_THAT(err.str(), HasSubstr("too short"));
    EXPECT_EQ(run({"user", "password", "ann@example.org", "--password-stdin", "--data", data}, "another one"), 0);
    EXPECT_EQ(run({"user", "password", "bob@example.org", "--password-stdin", "--data", data}, "another one"), 1);
    EXPECT_EQ(run({"user", "list", "--data", data}), 0);
    EXPECT_EQ(out.str(), "ann@example.org\tAnn\n");
}

TEST_F(Program, ReadsItsCommandLine)
{
    std::string error;
    const auto command =
        readCommandLine({"serve", "--data", "d", "--listen", "[::1]:9", "--public-url", "https://x.org", "--smtp",
                         "smtp://mail:25", "--api-id", "i", "--api-key", "k", "--behind-proxy"},
                        error);
    ASSERT_TRUE(command) << error;
    EXPECT_EQ(command->config.listen, "[::1]:9");
    EXPECT_EQ(command->config.dataDirectory, "d");
    EXPECT_EQ(command->config.publicUrl, "https://x.org");
    EXPECT_EQ(command->config.smtpUrl, "smtp://mail:25");
    EXPECT_EQ(command->config.apiId, "i");
    EXPECT_EQ(command->config.apiKey, "k");
    EXPECT_TRUE(command->config.behindProxy);

    const std::vector<std::vector<std::string>> wrong{
        {},
        {"start"},
        {"serve"},
        {"serve", "--data"},
        {"serve", "--data", "a", "--data", "b"},
        {"serve", "--data", "a", "--port", "1"},
        {"serve", "--data", "a", "--public-url", "x.org"},
        {"serve", "--data", "a", "--smtp", "http://x"},
        {"user"},
        {"user", "remove"},
        {"user", "add", "--data", "a"},
        {"user", "add", "a@b", "--data", "a", "--name", "A"},
        {"user", "add", "a@b", "--data", "a", "--password-stdin"},
        {"user", "add", "a@b", "--name", "A", "--password-stdin"},
        {"user", "list", "--data", "a", "--name", "A"},
    };
    for (const auto& arguments : wrong) {
        EXPECT_EQ(run(arguments), 2);
        EXPECT_THAT(err.str(), HasSubstr("See orvanta-cloud --help."));
    }
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_THAT(out.str(), HasSubstr("orvanta-cloud serve"));
}
