#include "cloud/app/CommandLine.h"

#include "cloud/app/Users.h"
#include "cloud/base/Address.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>

namespace orvcloud
{
namespace
{
constexpr const char* helpText = R"(orvanta-cloud keeps models and their comments for Orvanta.

  orvanta-cloud serve --data DIR [--listen ADDR] [--public-url URL] [--smtp URL] [--mail-from ADDRESS]
                      [--tls-cert FILE --tls-key FILE] [--behind-proxy] [--api-id ID] [--api-key KEY]
  orvanta-cloud user add EMAIL --name NAME --password-stdin --data DIR
  orvanta-cloud user password EMAIL --password-stdin --data DIR
  orvanta-cloud user list --data DIR

serve     listens on ADDR (127.0.0.1:8640; port 0 picks a free one) until it gets SIGTERM.
          Others than this machine itself are served over TLS alone: give a certificate, or say with --behind-proxy
          that a proxy which speaks TLS stands in front. The proxy must add its client's address to X-Forwarded-For.
          Without --smtp invitations are left as files in DIR/outbox. An SMTP user stands in the URL, its
          password in the environment variable ORVANTA_SMTP_PASSWORD.
user      manages the accounts, also while the service runs. The password is the first line of standard input.
)";

/// What may follow a command: options with a value, and flags without.
bool readOptions(const std::vector<std::string>& arguments, std::size_t first,
                 const std::map<std::string, std::string*>& options, const std::set<std::string>& flags,
                 std::set<std::string>& given, std::string& error)
{
    for (std::size_t i = first; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const auto option = options.find(argument);
        if (option == options.end() && !flags.contains(argument)) {
            error = "\"" + argument + "\" isn't understood here.";
            return false;
        }
        if (!given.insert(argument).second) {
            error = argument + " is given twice.";
            return false;
        }
        if (option == options.end())
            continue;
        if (i + 1 == arguments.size()) {
            error = argument + " lacks its value.";
            return false;
        }
        *option->second = arguments[++i];
    }
    return true;
}

bool requireOptions(const std::set<std::string>& given, std::initializer_list<const char*> wanted, std::string& error)
{
    for (const char* option : wanted) {
        if (!given.contains(option)) {
            error = std::string(option) + " is missing.";
            return false;
        }
    }
    return true;
}

std::optional<Command> readServe(const std::vector<std::string>& arguments, std::string& error)
{
    Command command;
    command.kind = Command::Kind::serve;
    Config& config = command.config;
    std::string data;
    std::set<std::string> given;
    const std::map<std::string, std::string*> options{
        {"--data", &data},           {"--listen", &config.listen},        {"--public-url", &config.publicUrl},
        {"--smtp", &config.smtpUrl}, {"--mail-from", &config.mailSender}, {"--tls-cert", &config.tlsCertificate},
        {"--api-id", &config.apiId}, {"--api-key", &config.apiKey},       {"--tls-key", &config.tlsKey},
    };
    if (!readOptions(arguments, 1, options, {"--behind-proxy"}, given, error) ||
        !requireOptions(given, {"--data"}, error))
        return std::nullopt;
    config.behindProxy = given.contains("--behind-proxy");
    if (!config.behindProxy && config.tlsCertificate.empty() && !isLoopbackHost(hostOfAddress(config.listen))) {
        error =
            "Passwords would cross the network in plain text: give --tls-cert and --tls-key, or --behind-proxy if a "
            "proxy that speaks TLS stands in front.";
        return std::nullopt;
    }
    if (!config.publicUrl.empty() && !config.publicUrl.starts_with("http://") &&
        !config.publicUrl.starts_with("https://")) {
        error = "--public-url takes an address that begins with https:// or http://.";
        return std::nullopt;
    }
    if (!config.smtpUrl.empty() && !config.smtpUrl.starts_with("smtp://") && !config.smtpUrl.starts_with("smtps://")) {
        error = "--smtp takes an address that begins with smtp:// or smtps://.";
        return std::nullopt;
    }
    config.dataDirectory = data;
    return command;
}

std::optional<Command> readUser(const std::vector<std::string>& arguments, std::string& error)
{
    Command command;
    const std::string verb = arguments.size() > 1 ? arguments[1] : "";
    std::string data;
    std::set<std::string> given;
    std::map<std::string, std::string*> options{{"--data", &data}};
    std::set<std::string> flags;
    std::size_t first = 2;
    if (verb == "list") {
        command.kind = Command::Kind::listUsers;
    } else if (verb == "add" || verb == "password") {
        command.kind = verb == "add" ? Command::Kind::addUser : Command::Kind::setPassword;
        if (arguments.size() < 3 || arguments[2].starts_with("--")) {
            error = "The e-mail address is missing.";
            return std::nullopt;
        }
        command.email = arguments[2];
        flags.insert("--password-stdin");
        if (verb == "add")
            options["--name"] = &command.name;
        first = 3;
    } else {
        error = "After \"user\" comes add, password or list.";
        return std::nullopt;
    }
    if (!readOptions(arguments, first, options, flags, given, error) || !requireOptions(given, {"--data"}, error))
        return std::nullopt;
    if (verb == "add" && !requireOptions(given, {"--name"}, error))
        return std::nullopt;
    if (verb != "list" && !requireOptions(given, {"--password-stdin"}, error))
        return std::nullopt;
    command.config.dataDirectory = data;
    return command;
}

/// As many as the system concedes, within reason: each connection takes one and an upload two.
void allowManyDescriptors()
{
    constexpr rlim_t wanted = 8192;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

int serve(Config config, std::ostream& out, std::ostream& err)
{
    // Blocked before any thread is made, so that the signal reaches nobody but sigwait.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    allowManyDescriptors();
    if (const char* password = std::getenv("ORVANTA_SMTP_PASSWORD"))
        config.smtpPassword = password;
    config.log = [&err](const std::string& line) { err << line + "\n" << std::flush; };
    Service service(std::move(config));
    out << "orvanta-cloud is ready on " << service.url() << std::endl;
    int received = 0;
    sigwait(&signals, &received);
    service.stop();
    return 0;
}

int run(Command command, std::istream& in, std::ostream& out, std::ostream& err)
{
    switch (command.kind) {
    case Command::Kind::serve:
        return serve(std::move(command.config), out, err);
    case Command::Kind::addUser:
        addUser(command.config, command.email, command.name, readPassword(in));
        out << "The account " << command.email << " was added.\n";
        return 0;
    case Command::Kind::setPassword:
        setPassword(command.config, command.email, readPassword(in));
        out << "The account " << command.email << " has a new password and was signed out everywhere.\n";
        return 0;
    case Command::Kind::listUsers:
        for (const Account& account : listUsers(command.config))
            out << account.email << '\t' << account.name << '\n';
        return 0;
    case Command::Kind::help:
        break;
    }
    out << helpText;
    return 0;
}
} // namespace

std::optional<Command> readCommandLine(const std::vector<std::string>& arguments, std::string& error)
{
    if (arguments.empty()) {
        error = "A command is missing.";
        return std::nullopt;
    }
    if (arguments[0] == "--help" || arguments[0] == "-h" || arguments[0] == "help")
        return Command();
    if (arguments[0] == "serve")
        return readServe(arguments, error);
    if (arguments[0] == "user")
        return readUser(arguments, error);
    error = "\"" + arguments[0] + "\" isn't a command.";
    return std::nullopt;
}

int runCommandLine(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err)
{
    ::umask(0077); // all that the service writes is its own
    std::string error;
    const auto command = readCommandLine(arguments, error);
    if (!command) {
        err << error << " See orvanta-cloud --help.\n";
        return 2;
    }
    try {
        return run(*command, in, out, err);
    } catch (const std::exception& failure) {
        err << failure.what() << "\n";
        return 1;
    }
}

} // namespace orvcloud
