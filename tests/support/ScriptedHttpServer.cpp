#include "support/ScriptedHttpServer.h"

#include "support/Loopback.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <sstream>

#include <fcntl.h>
#include <poll.h>
#include <strings.h>

namespace orvtest
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::size_t fillerBlock = 1 << 18;

std::string const& fillerBytes()
{
    static std::string const block(fillerBlock, 'x');
    return block;
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
    EXPECT_EQ(line, request.method + " " + request.target + " HTTP/1.1\r") << "no request line";
    while (std::getline(lines, line)) {
        auto const colon = line.find(": ");
        bool const isWhole = colon != std::string::npos && line.back() == '\r';
        EXPECT_TRUE(isWhole) << "a header line the server can't read: " << line;
        if (isWhole) {
            std::string const name = line.substr(0, colon);
            EXPECT_FALSE(request.hasHeader(name)) << "the header " << name << " came twice";
            request.headers.emplace_back(name, line.substr(colon + 2, line.size() - colon - 3));
        }
    }
    EXPECT_FALSE(request.hasHeader("Transfer-Encoding")) << "the service answers 411 to a body of unknown length";
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

struct ScriptedHttpServer::Connection {
    int socket = -1;
    int number = 0;
    std::string input;
    std::string output;
    std::size_t filler = 0;
    bool closesAfterOutput = false;
    bool isDeaf = false;
    bool isOver = false;
    std::chrono::milliseconds interval{0};
    Clock::time_point nextByte;

    bool hasOutput() const { return !output.empty() || filler > 0; }
};

ScriptedHttpServer::ScriptedHttpServer()
{
    listener = listenOnLoopback(listeningPort, 16, SOCK_NONBLOCK);
    if (listener < 0 || ::pipe2(wake, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no loopback port for the scripted server";
        std::abort();
    }
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
    takeWhatIsLeft();
    ::close(listener);
    for (Connection const& connection : open) {
        ::close(connection.socket);
    }
    open.clear();
}

/// What came in while the thread was told to end counts like everything else.
void ScriptedHttpServer::takeWhatIsLeft()
{
    for (std::size_t before = open.size() + 1; before != open.size();) {
        before = open.size();
        accept();
    }
    for (Connection& connection : open) {
        if (!connection.isDeaf) {
            receive(connection);
        }
        checkThatNothingIsLeft(connection);
    }
}

void ScriptedHttpServer::checkThatNothingIsLeft(Connection const& connection) const
{
    std::lock_guard const lock(guard);
    EXPECT_TRUE(connection.isDeaf || allowsOtherBytes || connection.input.empty())
        << "bytes that are no whole request: " << connection.input;
}

void ScriptedHttpServer::allowOtherBytes()
{
    std::lock_guard const lock(guard);
    allowsOtherBytes = true;
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

std::string ScriptedHttpServer::everything() const
{
    std::lock_guard const lock(guard);
    return bytes;
}

void ScriptedHttpServer::run()
{
    for (;;) {
        std::vector<pollfd> waits{{wake[0], POLLIN, 0}, {listener, POLLIN, 0}};
        int timeout = -1;
        for (Connection const& connection : open) {
            short events = connection.isDeaf ? 0 : POLLIN;
            if (connection.hasOutput() && connection.interval.count() == 0) {
                events = static_cast<short>(events | POLLOUT);
            } else if (connection.hasOutput()) {
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
        std::erase_if(open, [this](Connection const& connection) {
            if (connection.isOver) {
                checkThatNothingIsLeft(connection);
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
        auto const size = static_cast<std::size_t>(count);
        connection.input.append(block, size);
        {
            std::lock_guard const lock(guard);
            bytes.append(block, size);
        }
        while (!connection.isDeaf && answerWhatIsComplete(connection)) {
        }
    }
    bool const isHungUp = count == 0 || (count < 0 && errno != EAGAIN && errno != EWOULDBLOCK);
    connection.isOver = connection.isOver || isHungUp;
}

bool ScriptedHttpServer::answerWhatIsComplete(Connection& connection)
{
    std::size_t headLength = 0;
    auto request = parsedHead(connection.input, headLength);
    if (!request) {
        return false;
    }
    std::size_t const bodyLength = std::strtoul(request->header("Content-Length").c_str(), nullptr, 10);
    bool const isWhole = connection.input.size() >= headLength + bodyLength;
    bool waitsForBody = true;
    {
        std::lock_guard const lock(guard);
        waitsForBody = expected.empty() || expected.front().answer.readsBody;
    }
    if (!isWhole && waitsForBody) {
        return false;
    }
    request->connection = connection.number;
    request->body = connection.input.substr(headLength, bodyLength);
    request->bytes = connection.input.substr(0, headLength + bodyLength);
    connection.input.erase(0, headLength + bodyLength);
    Answer const answer = answerFor(*request);
    connection.output += answer.bytes;
    connection.filler = answer.filler;
    connection.closesAfterOutput = answer.closes;
    connection.isOver = answer.closes && !connection.hasOutput();
    connection.isDeaf = !answer.readsBody;
    connection.interval = answer.interval;
    connection.nextByte = Clock::now();
    if (answer.isLast) {
        ::close(listener);
        listener = -1;
        for (Connection& other : open) {
            other.isOver = other.isOver || &other != &connection;
        }
    }
    if (answer.interval.count() > 0) {
        // The header goes out with the first byte.
        auto const body = connection.output.find("\r\n\r\n") + 4;
        ::send(connection.socket, connection.output.data(), body, MSG_NOSIGNAL);
        connection.output.erase(0, body);
    }
    return true;
}

void ScriptedHttpServer::transmit(Connection& connection)
{
    while (connection.hasOutput() && !connection.isOver) {
        bool const isSlow = connection.interval.count() > 0;
        if (isSlow && Clock::now() < connection.nextByte) {
            return;
        }
        bool const isFiller = connection.output.empty();
        std::string const& from = isFiller ? fillerBytes() : connection.output;
        std::size_t const most = isFiller ? std::min(connection.filler, fillerBlock) : from.size();
        ssize_t const count = ::send(connection.socket, from.data(), isSlow ? 1 : most, MSG_NOSIGNAL);
        if (count < 0) {
            connection.isOver = errno != EAGAIN && errno != EWOULDBLOCK;
            return;
        }
        auto const sent = static_cast<std::size_t>(count);
        if (isFiller) {
            connection.filler -= sent;
        } else {
            connection.output.erase(0, sent);
        }
        connection.nextByte = Clock::now() + connection.interval;
        connection.isOver = !connection.hasOutput() && connection.closesAfterOutput;
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
