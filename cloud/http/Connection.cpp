#include "cloud/http/Connection.h"

#include "cloud/base/Text.h"
#include "cloud/http/HeadCheck.h"
#include "cloud/http/Pace.h"
#include "cloud/http/Peer.h"
#include "cloud/store/StoreError.h"

#include <boost/asio/as_tuple.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl/ssl_stream.hpp>
#include <boost/beast/version.hpp>
#include <chrono>

namespace orvcloud
{
namespace
{
namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using boost::system::error_code;

constexpr std::size_t pieceSize = 64 * 1024;
constexpr std::size_t lingerBytes = 64U << 20;
constexpr auto noThrow = asio::as_tuple(asio::use_awaitable);

Answer failureOf(unsigned status, std::string sentence)
{
    Answer answer;
    answer.status = status;
    answer.body = std::move(sentence);
    return answer;
}

template <class Work>
asio::awaitable<std::invoke_result_t<Work>> once(Work work)
{
    co_return work();
}

/// Runs `work` on a pool while this connection's thread serves others.
template <class Work>
auto runOn(asio::thread_pool& pool, Work work)
{
    return asio::co_spawn(pool, once(std::move(work)), asio::use_awaitable);
}

/// The application's failures in the form of answers.
template <class Work>
Answer guarded(ServerState& state, const Work& work)
{
    try {
        return work();
    } catch (const StoreError& error) {
        state.log(std::string("error: ") + error.what());
        if (error.diskFull())
            return failureOf(507, "The service's disk is full; tell whoever runs it, and try again afterwards.");
    } catch (const std::exception& error) {
        state.log(std::string("error: ") + error.what());
    }
    return failureOf(500, "The service failed at this request; try again, and tell whoever runs it if it stays so.");
}

HeadRefusal refusalFor(const error_code& error, const HttpHeader& read)
{
    // The parser ends at a Transfer-Encoding beside a Content-Length, whichever comes first.
    if (error == http::error::bad_transfer_encoding || read.count(http::field::transfer_encoding) != 0)
        return transferEncodingRefusal();
    if (error == http::error::header_limit || error == http::error::buffer_overflow)
        return {431, "The request's header is too large."};
    if (error == http::error::bad_version)
        return {505, "Only HTTP/1.1 is spoken here."};
    return {400, "The request isn't HTTP."};
}

/// Every co_await stands in a statement of its own: g++ 12 destroys what wasn't made where one stands behind "&&".
template <class Stream>
class Connection
{
public:
    Connection(Stream&& open, ServerState& shared, const asio::ip::address& peer)
        : stream(std::move(open)), state(shared), connected(peer), client(peer), buffer(pieceSize)
    {
        buffer.reserve(pieceSize);
    }

    asio::awaitable<void> serve()
    {
        if constexpr (!std::is_same_v<Stream, beast::tcp_stream>) {
            lowest().expires_after(limits().header);
            const auto [error] = co_await stream.async_handshake(asio::ssl::stream_base::server, noThrow);
            if (error)
                co_return;
        }
        bool goesOn = true;
        while (goesOn && !state.stopping) {
            goesOn = co_await awaitRequest();
            if (goesOn)
                goesOn = co_await serveRequest();
        }
        co_await close();
    }

private:
    using Parser = http::request_parser<http::buffer_body>;

    const Limits& limits() const { return state.settings.limits; }
    beast::tcp_stream& lowest() { return beast::get_lowest_layer(stream); }

    asio::awaitable<bool> awaitRequest()
    {
        if (buffer.size() > 0)
            co_return true;
        lowest().expires_after(limits().idle);
        const auto [error, count] = co_await stream.async_read_some(buffer.prepare(4096), noThrow);
        buffer.commit(count);
        co_return !error && count > 0;
    }

    /// True if the connection can go on with another request.
    asio::awaitable<bool> serveRequest()
    {
        const ServerState::Busy busy(state);
        began = std::chrono::steady_clock::now();
        logged = "-";
        method = "-";
        client = connected;
        bodiless = false;
        Parser parser;
        parser.header_limit(limits().headerBytes);
        parser.body_limit(boost::none); // held against the admission's limit below
        lowest().expires_after(limits().header);
        const auto [error, count] = co_await http::async_read_header(stream, buffer, parser, noThrow);
        if (error && error.category() != make_error_code(http::error::bad_method).category()) {
            noteTimeout(error); // the stream closes itself at a deadline, so nothing can be answered
            co_return false;
        }
        bodiless = parser.get().method() == http::verb::head;
        if (error == http::error::end_of_stream || error == http::error::partial_message)
            co_return false;
        if (error) {
            const HeadRefusal refusal = refusalFor(error, parser.get());
            co_await answer(failureOf(refusal.status, refusal.sentence), false);
            co_return false;
        }
        const auto& message = parser.get();
        if (message.method() != http::verb::unknown)
            method = std::string(message.method_string());
        if (const auto refusal = checkHead(message)) {
            co_await answer(failureOf(refusal->status, refusal->sentence), false);
            co_return false;
        }

        RequestHead head = readHead(message);
        if (state.settings.behindProxy)
            client = clientOf(head.forwardedFor, connected);
        head.peer = client.to_string();
        head.peerIsLoopback = client.is_loopback();
        Admission admission = co_await runOn(state.workers, [this, &head] {
            Admission made;
            const Answer failed = guarded(state, [&] {
                made = state.application.admit(head);
                return Answer();
            });
            if (failed.status != 200)
                made.refusal = failed;
            return made;
        });
        if (!admission.loggedPath.empty())
            logged = admission.loggedPath;
        if (!admission.refusal && head.contentLength > admission.bodyLimit)
            admission.refusal = failureOf(413, "The request is larger than the service takes.");
        if (admission.refusal) {
            // With a body unread behind it, the connection can't go on.
            const bool goesOn = co_await answer(*admission.refusal, message.keep_alive() && head.contentLength == 0);
            co_return goesOn;
        }
        if (head.contentLength > 0 && expectsContinue(message)) {
            const bool sent = co_await sendContinue();
            if (!sent)
                co_return false;
        }
        std::optional<Answer> early = co_await readBody(parser, *admission.sink);
        if (aborted)
            co_return false;
        if (early) {
            co_await answer(*early, false);
            co_return false;
        }
        const Answer made = co_await finish(admission);
        const bool goesOn = co_await answer(made, parser.get().keep_alive());
        co_return goesOn;
    }

    void noteTimeout(const error_code& error)
    {
        if (error == beast::error::timeout)
            note("timed out");
    }

    void note(const std::string& outcome)
    {
        const auto took =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - began).count();
        state.log(isoTime(state.settings.clock()) + " " + client.to_string() + " " + method + " " + logged + " " +
                  outcome + " " + std::to_string(took) + " ms");
    }

    asio::awaitable<bool> sendContinue()
    {
        static constexpr std::string_view text = "HTTP/1.1 100 Continue\r\n\r\n";
        lowest().expires_after(limits().transfer);
        const auto [error, count] = co_await asio::async_write(stream, asio::buffer(text.data(), text.size()), noThrow);
        co_return !error;
    }

    /// Gives the body to the sink in pieces. An answer if it has to end early; `aborted` if the client is gone.
    asio::awaitable<std::optional<Answer>> readBody(Parser& parser, BodySink& sink)
    {
        std::vector<char> piece(static_cast<std::size_t>(
            std::min<std::uint64_t>(pieceSize, parser.content_length_remaining().value_or(0))));
        Pace pace(limits().transfer, limits().slowestBytesPerSecond, std::chrono::steady_clock::now());
        std::size_t filled = 0;
        while (!parser.is_done()) {
            auto& body = parser.get().body();
            body.data = piece.data() + filled;
            body.size = piece.size() - filled;
            lowest().expires_after(limits().transfer);
            auto [error, count] = co_await http::async_read_some(stream, buffer, parser, noThrow);
            if (error == http::error::need_buffer)
                error = {};
            if (error) {
                noteTimeout(error);
                aborted = true;
                co_return std::nullopt;
            }
            const std::size_t got = piece.size() - filled - parser.get().body().size;
            filled += got;
            const auto now = std::chrono::steady_clock::now();
            if (!pace.keepsUp(got, now))
                co_return failureOf(408, "The request's body came too slowly.");
            if (filled == piece.size() || parser.is_done()) {
                auto early = co_await give(sink, std::string_view(piece.data(), filled));
                filled = 0;
                if (early)
                    co_return early;
                pace.skip(std::chrono::steady_clock::now() - now); // the sink's time isn't the client's
            }
        }
        co_return std::nullopt;
    }

    auto give(BodySink& sink, std::string_view bytes) -> asio::awaitable<std::optional<Answer>>
    {
        return runOn(state.workers, [this, &sink, bytes] {
            std::optional<Answer> early;
            const Answer failed = guarded(state, [&] {
                early = sink.take(bytes);
                return Answer();
            });
            return failed.status == 200 ? early : std::optional(failed);
        });
    }

    asio::awaitable<Answer> finish(Admission& admission)
    {
        const auto work = [this, &admission] {
            // The sink goes here too: what it holds is given back on a thread that may wait.
            auto sink = std::move(admission.sink);
            return guarded(state, [&] { return sink->finish(); });
        };
        if (!admission.slow) {
            Answer made = co_await runOn(state.workers, work);
            co_return made;
        }
        struct Waiting {
            std::atomic<std::size_t>& count;
            std::size_t before;
            explicit Waiting(std::atomic<std::size_t>& counter) : count(counter), before(count++) {}
            ~Waiting() { --count; }
        } waiting(state.waitingHashes);
        if (waiting.before >= limits().waitingHashes) {
            Answer busy = failureOf(503, "Too many people sign in at once; try again in a moment.");
            busy.headers.emplace_back("Retry-After", "2");
            co_return busy;
        }
        Answer made = co_await runOn(state.hashers, work);
        co_return made;
    }

    /// True if the connection goes on.
    asio::awaitable<bool> answer(Answer given, bool keepAlive)
    {
        const bool goesOn = keepAlive && !state.stopping;
        const ServerState::Held held(state, given.body.size());
        if (!held.fits()) {
            given = failureOf(503, "Too many large answers are under way; try again in a moment.");
            given.headers.emplace_back("Retry-After", "10");
        }
        http::response<http::string_body> response(static_cast<http::status>(given.status), 11);
        response.set(http::field::server, "orvanta-cloud");
        response.set(http::field::date, httpTime(state.settings.clock()));
        response.set(http::field::content_type, given.contentType);
        response.set(http::field::cache_control, "no-store");
        response.set("X-Content-Type-Options", "nosniff");
        for (const auto& [name, value] : given.headers)
            response.set(name, value);
        response.keep_alive(goesOn);
        response.body() = std::move(given.body);
        response.prepare_payload();
        const std::size_t size = response.body().size();
        if (bodiless)
            response.body().clear(); // the length stays the one that GET would have
        const auto longest = static_cast<std::uint64_t>(limits().longestAnswer.count());
        Pace pace(limits().transfer, std::max(limits().slowestBytesPerSecond, size / longest),
                  std::chrono::steady_clock::now());

        http::response_serializer<http::string_body> serializer(response);
        bool sent = true;
        while (sent && !serializer.is_done()) {
            lowest().expires_after(limits().transfer);
            const auto [error, count] = co_await http::async_write_some(stream, serializer, noThrow);
            sent = !error && (serializer.is_done() || pace.keepsUp(count, std::chrono::steady_clock::now()));
        }
        note(std::to_string(given.status) + " " + std::to_string(size) + " bytes" + (sent ? "" : " undelivered"));
        co_return sent&& goesOn;
    }

    /// Ends our side and reads on for a while: closing with bytes unread would make the system discard the answer
    /// before the client has it.
    asio::awaitable<void> close()
    {
        lowest().expires_after(limits().linger);
        if constexpr (!std::is_same_v<Stream, beast::tcp_stream>)
            co_await stream.async_shutdown(noThrow);
        error_code ignored;
        lowest().socket().shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
        std::vector<char> discarded(4096);
        std::size_t total = 0;
        while (total < lingerBytes) {
            const auto [error, count] = co_await lowest().async_read_some(asio::buffer(discarded), noThrow);
            if (error)
                break;
            total += count;
        }
        lowest().socket().close(ignored);
    }

    Stream stream;
    ServerState& state;
    asio::ip::address connected; // the other end of the connection
    asio::ip::address client;    // whom the request at hand comes from
    beast::flat_buffer buffer;
    std::chrono::steady_clock::time_point began;
    std::string method;
    std::string logged;
    bool aborted = false;
    bool bodiless = false; // what answers HEAD has no body, a failure neither
};
} // namespace

asio::awaitable<void> serveConnection(asio::ip::tcp::socket socket, ServerState& state, asio::ssl::context* tls)
{
    try {
        error_code error;
        const auto endpoint = socket.remote_endpoint(error);
        if (error)
            co_return;
        const asio::ip::address peer = plainAddress(endpoint.address());
        const ConnectionCount::Entry entry(state.connections, peer.to_string(),
                                           peer.is_loopback() || state.settings.behindProxy);
        if (!entry.isFree())
            co_return;
        socket.set_option(asio::ip::tcp::no_delay(true), error);
        beast::tcp_stream plain(std::move(socket));
        if (tls) {
            Connection<beast::ssl_stream<beast::tcp_stream>> connection(
                beast::ssl_stream<beast::tcp_stream>(std::move(plain), *tls), state, peer);
            co_await connection.serve();
        } else {
            Connection<beast::tcp_stream> connection(std::move(plain), state, peer);
            co_await connection.serve();
        }
    } catch (const std::exception& error) {
        state.log(std::string("error: a connection ended: ") + error.what());
    }
}

} // namespace orvcloud
