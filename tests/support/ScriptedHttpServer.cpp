#include "support/ScriptedHttpServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <sstream>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvtest
{

namespace
{

using Clock = std::chrono::steady_clock;

std::string head(int code, std::size_t length, std::string const& moreHeaders)
{
    return "HTTP/1.1 " + std::to_string(code) +
           " Scripted\r\nContent-Type: text/plain\r\nContent-Length: " + std::to_string(length) + "\r\n" + moreHeaders +
           "\r\n";
}

/// Reads the header of what came in; empty while it isn't whole.
std::optional<ReceivedRequest> parsedHead(std::string const& input, std::size_t& headLength)
{
    auto const end = input.find("\r\n\r\n");
    if (end == std::string::npos) {
        return std::nullopt;
    }
    headLength = end + 4;
    ReceivedRequest request;
    std::istringstream lines(input.substr(0, end + 2));
    std::string line;
    std::getline(lines, line);
    std::istringstream(line) >> request.method >> request.target;
    while (std::getline(lines, line)) {
        auto const colon = line.find(": ");
        bool const isWhole = colon != std::string::npos && line.back() == '\r';
        EXPECT_TRUE(isWhole) << "a header line the server can't read: " << line;
        if (isWhole) {
            request.headers.emplace_back(line.substr(0, colon), line.substr(colon + 2, line.size() - colon - 3));
        }
    }
    return request;
}

} // namespace

std::string ReceivedRequest::query() const
{
    auto const mark = target.find('?');
    return mark == std::string::npos ? std::string() : target.substr(mark + 1);
}

std::string ReceivedRequest::header(std::string const& name) const
{
    for (auto const& [key, value] : headers) {
        if (strcasecmp(key.c_str(), name.c_str()) == 0) {
            return value;
        }
    }
    return {};
}

bool ReceivedRequest::hasHeader(std::string const& name) const
{
    return std::any_of(headers.begin(), headers.end(),
                       [&](auto const& header) { return strcasecmp(header.first.c_str(), name.c_str()) == 0; });
}

Answer Answer::ok(std::string const& body, std::string const& moreHeaders)
{
    return status(200, body, moreHeaders);
}

Answer Answer::status(int code, std::string const& body, std::string const& moreHeaders)
{
    return raw(head(code, body.size(), moreHeaders) + body, false);
}

Answer Answer::redirect(std::string const& address)
{
    return status(302, "moved", "Location: " + address + "\r\n");
}

Answer Answer::silence()
{
    return {};
}

Answer Answer::hangUp()
{
    return raw("", true);
}

Answer Answer::cut(std::string const& body, std::size_t announced)
{
    return raw(head(200, announced, "") + body, true);
}

Answer Answer::trickle(std::string const& body, std::chrono::milliseconds gap)
{
    Answer answer = ok(body);
    answer.interval = gap;
    return answer;
}

Answer Answer::deaf()
{
    Answer answer;
    answer.readsBody = false;
    return answer;
}

Answer Answer::raw(std::string bytes, bool closes)
{
    Answer answer;
    answer.bytes = std::move(bytes);
    answer.closes = closes;
    return answer;
}

struct ScriptedHttpServer::Connection {
    int socket = -1;
    int number = 0;
    std::string input;
    std::string output;
    bool closesAfterOutput = false;
    bool isDeaf = false;
    bool isOver = false;
    std::chrono::milliseconds interval{0};
    Clock::time_point nextByte;
};

ScriptedHttpServer::ScriptedHttpServer()
{
    listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    socklen_t size = sizeof address;
    if (listener < 0 || ::bind(listener, generic, size) != 0 || ::listen(listener, 16) != 0 ||
        ::getsockname(listener, generic, &size) != 0 || ::pipe2(wake, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no loopback port for the scripted server";
        std::abort();
    }
    listeningPort = ntohs(address.sin_port);
    thread = std::thread([this] { run(); });
}

ScriptedHttpServer::~ScriptedHttpServer()
{
    stop();
    ::close(wake[0]);
    ::close(wake[1]);
    for (Expected const& one : expected) {
        ADD_FAILURE() << "expected " << one.method << " " << one.path << ", which never came";
    }
}

void ScriptedHttpServer::stop()
{
    if (!thread.joinable()) {
        return;
    }
    char const signal = 'x';
    EXPECT_EQ(::write(wake[1], &signal, 1), 1);
    thread.join();
    ::close(listener);
    for (Connection const& connection : open) {
        ::close(connection.socket);
    }
    open.clear();
}

std::string ScriptedHttpServer::url() const
{
    return "http://127.0.0.1:" + std::to_string(listeningPort);
}

std::wstring ScriptedHttpServer::wideUrl() const
{
    std::string const narrow = url();
    return {narrow.begin(), narrow.end()};
}

void ScriptedHttpServer::expect(std::string method, std::string path, Answer answer)
{
    std::lock_guard const lock(guard);
    expected.push_back({std::move(method), std::move(path), std::move(answer)});
}

std::vector<ReceivedRequest> ScriptedHttpServer::requests() const
{
    std::lock_guard const lock(guard);
    return received;
}

ReceivedRequest ScriptedHttpServer::last() const
{
    std::lock_guard const lock(guard);
    if (received.empty()) {
        ADD_FAILURE() << "no request came";
        return {};
    }
    return received.back();
}

int ScriptedHttpServer::connections() const
{
    std::lock_guard const lock(guard);
    return accepted;
}

void ScriptedHttpServer::run()
{
    for (;;) {
        std::vector<pollfd> waits{{wake[0], POLLIN, 0}, {listener, POLLIN, 0}};
        int timeout = -1;
        for (Connection const& connection : open) {
            short events = connection.isDeaf ? 0 : POLLIN;
            if (!connection.output.empty() && connection.interval.count() == 0) {
                events = static_cast<short>(events | POLLOUT);
            } else if (!connection.output.empty()) {
                auto const left =
                    std::chrono::duration_cast<std::chrono::milliseconds>(connection.nextByte - Clock::now()).count();
                int const due = static_cast<int>(std::max<long>(left, 0)) + 1;
                timeout = timeout < 0 ? due : std::min(timeout, due);
            }
            waits.push_back({connection.socket, events, 0});
        }
        if (::poll(waits.data(), waits.size(), timeout) < 0 || waits[0].revents != 0) {
            return;
        }
        for (std::size_t i = 0; i < open.size(); ++i) {
            if ((waits[i + 2].revents & (POLLIN | POLLHUP | POLLERR)) != 0) {
                receive(open[i]);
            }
            transmit(open[i]);
        }
        std::erase_if(open, [](Connection const& connection) {
            if (connection.isOver) {
                ::close(connection.socket);
            }
            return connection.isOver;
        });
        if (waits[1].revents != 0) {
            accept();
        }
    }
}

void ScriptedHttpServer::accept()
{
    int const socket = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (socket >= 0) {
        std::lock_guard const lock(guard);
        Connection connection;
        connection.socket = socket;
        connection.number = ++accepted;
        open.push_back(std::move(connection));
    }
}

void ScriptedHttpServer::receive(Connection& connection)
{
    if (connection.isDeaf) {
        connection.isOver = true; // no longer read from, so it is the other end that left
        return;
    }
    char block[65536];
    ssize_t count = 1;
    while (!connection.isDeaf && (count = ::recv(connection.socket, block, sizeof block, 0)) > 0) {
        connection.input.append(block, static_cast<std::size_t>(count));
        answerWhatIsComplete(connection);
    }
    bool const isHungUp = count == 0 || (count < 0 && errno != EAGAIN && errno != EWOULDBLOCK);
    connection.isOver = connection.isOver || isHungUp;
}

void ScriptedHttpServer::answerWhatIsComplete(Connection& connection)
{
    std::size_t headLength = 0;
    auto request = parsedHead(connection.input, headLength);
    if (!request) {
        return;
    }
    std::size_t const bodyLength = std::strtoul(request->header("Content-Length").c_str(), nullptr, 10);
    bool const isWhole = connection.input.size() >= headLength + bodyLength;
    bool waitsForBody = true;
    {
        std::lock_guard const lock(guard);
        waitsForBody = expected.empty() || expected.front().answer.readsBody;
    }
    if (!isWhole && waitsForBody) {
        return;
    }
    request->connection = connection.number;
    request->body = connection.input.substr(headLength, bodyLength);
    request->bytes = connection.input.substr(0, headLength + bodyLength);
    connection.input.erase(0, headLength + bodyLength);
    Answer const answer = answerFor(*request);
    connection.output += answer.bytes;
    connection.closesAfterOutput = answer.closes;
    connection.isOver = answer.closes && connection.output.empty();
    connection.isDeaf = !answer.readsBody;
    connection.interval = answer.interval;
    connection.nextByte = Clock::now();
    if (answer.interval.count() > 0) {
        // The header goes out with the first byte.
        auto const body = connection.output.find("\r\n\r\n") + 4;
        ::send(connection.socket, connection.output.data(), body, MSG_NOSIGNAL);
        connection.output.erase(0, body);
    }
}

void ScriptedHttpServer::transmit(Connection& connection)
{
    while (!connection.output.empty() && !connection.isOver) {
        bool const isSlow = connection.interval.count() > 0;
        if (isSlow && Clock::now() < connection.nextByte) {
            return;
        }
        ssize_t const count =
            ::send(connection.socket, connection.output.data(), isSlow ? 1 : connection.output.size(), MSG_NOSIGNAL);
        if (count < 0) {
            connection.isOver = errno != EAGAIN && errno != EWOULDBLOCK;
            return;
        }
        connection.output.erase(0, static_cast<std::size_t>(count));
        connection.nextByte = Clock::now() + connection.interval;
        connection.isOver = connection.output.empty() && connection.closesAfterOutput;
    }
}

Answer ScriptedHttpServer::answerFor(ReceivedRequest const& request)
{
    std::lock_guard const lock(guard);
    received.push_back(request);
    if (expected.empty() || expected.front().method != request.method || expected.front().path != request.path()) {
        ADD_FAILURE() << "unexpected " << request.method << " " << request.target;
        return Answer::status(500, "unexpected");
    }
    Answer answer = expected.front().answer;
    expected.pop_front();
    return answer;
}

} // namespace orvtest
