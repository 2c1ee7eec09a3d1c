#pragma once

#include "support/ScriptedAnswer.h"

#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace orvtest
{

/// A request as it came in, byte for byte.
struct ReceivedRequest {
    std::string method;
    std::string target; ///< path and query
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    std::string bytes;  ///< everything from the request line to the end of the body
    int connection = 0; ///< number of the connection, from 1

    std::string path() const { return target.substr(0, target.find('?')); }
    std::string query() const;                         ///< without the question mark
    std::string header(std::string const& name) const; ///< empty where there is none; letter case is ignored
    bool hasHeader(std::string const& name) const;
};

/// A small HTTP server on a loopback port, with a thread of its own. It answers the requests that it was told to
/// expect, in that order, and fails the test on any other, on expected ones that never came, and on bytes that are no
/// whole request.
class ScriptedHttpServer
{
public:
    ScriptedHttpServer();
    ~ScriptedHttpServer();
    ScriptedHttpServer(ScriptedHttpServer const&) = delete;
    ScriptedHttpServer& operator=(ScriptedHttpServer const&) = delete;

    /// "http://127.0.0.1:port"
    std::string url() const;
    std::wstring wideUrl() const;
    unsigned short port() const { return listeningPort; }

    void expect(std::string method, std::string path, Answer answer);
    /// From here on bytes that are no whole request are no failure: see everything().
    void allowOtherBytes();
    /// Ends the listening and all connections: from here on the port refuses.
    void stop();

    std::vector<ReceivedRequest> requests() const;
    ReceivedRequest last() const;
    int connections() const; ///< made so far
    /// Every byte that came in, over all connections. Of what an answer made the server leave unread nothing is here.
    std::string everything() const;

private:
    struct Expected {
        std::string method;
        std::string path;
        Answer answer;
    };
    struct Connection;

    void run();
    void accept();
    void receive(Connection& connection);
    bool answerWhatIsComplete(Connection& connection); ///< false where no whole request is there
    void takeWhatIsLeft();
    void checkThatNothingIsLeft(Connection const& connection) const;
    void transmit(Connection& connection);
    Answer answerFor(ReceivedRequest const& request);

    int listener = -1;
    int wake[2] = {-1, -1};
    unsigned short listeningPort = 0;
    std::vector<Connection> open; ///< the thread's own
    mutable std::mutex guard;     ///< of what follows
    std::deque<Expected> expected;
    std::vector<ReceivedRequest> received;
    std::string bytes;
    bool allowsOtherBytes = false;
    int accepted = 0;
    std::thread thread;
};

} // namespace orvtest
