#pragma once

#include <chrono>
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

/// What the server does with one request.
struct Answer {
    std::string bytes;                     ///< what it sends; empty for silence
    bool closes = false;                   ///< hangs up after the last byte
    bool readsBody = true;                 ///< false: answers after the header and reads no more
    std::chrono::milliseconds interval{0}; ///< above zero: one byte at a time, so far apart

    static Answer ok(std::string const& body, std::string const& moreHeaders = {});
    static Answer status(int code, std::string const& body = {}, std::string const& moreHeaders = {});
    static Answer redirect(std::string const& address);
    static Answer silence();                                           ///< reads, says nothing, stays
    static Answer hangUp();                                            ///< reads, says nothing, closes
    static Answer cut(std::string const& body, std::size_t announced); ///< closes before the announced end
    static Answer trickle(std::string const& body,
                          std::chrono::milliseconds gap); ///< header at once, body byte by byte
    static Answer deaf();                                 ///< stops reading after the header
    static Answer raw(std::string bytes, bool closes = true);
};

/// A small HTTP server on a loopback port, with a thread of its own. It answers the requests that it was told to
/// expect, in that order, and fails the test on any other and on expected ones that never came.
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
    /// Ends the listening and all connections: from here on the port refuses.
    void stop();

    std::vector<ReceivedRequest> requests() const;
    ReceivedRequest last() const;
    int connections() const; ///< made so far

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
    void answerWhatIsComplete(Connection& connection);
    void transmit(Connection& connection);
    Answer answerFor(ReceivedRequest const& request);

    int listener = -1;
    int wake[2] = {-1, -1};
    unsigned short listeningPort = 0;
    std::vector<Connection> open; ///< the thread's own
    mutable std::mutex guard;     ///< of what follows
    std::deque<Expected> expected;
    std::vector<ReceivedRequest> received;
    int accepted = 0;
    std::thread thread;
};

} // namespace orvtest
