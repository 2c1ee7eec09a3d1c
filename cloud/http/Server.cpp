#include "cloud/http/Server.h"

#include "cloud/http/Connection.h"
#include "cloud/http/ServerState.h"

#include <boost/asio/as_tuple.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/strand.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace orvcloud
{
namespace asio = boost::asio;
using asio::ip::tcp;

namespace
{
constexpr std::size_t threadCount = 4;

tcp::endpoint resolve(asio::io_context& context, const std::string& address)
{
    const auto colon = address.rfind(':');
    if (colon == std::string::npos)
        throw std::runtime_error("The address \"" + address + "\" lacks a port; write it like 127.0.0.1:8640.");
    std::string host = address.substr(0, colon);
    if (host.size() > 1 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    boost::system::error_code error;
    tcp::resolver resolver(context);
    const auto found = resolver.resolve(host, address.substr(colon + 1),
                                        tcp::resolver::passive | tcp::resolver::numeric_service, error);
    if (error || found.empty())
        throw std::runtime_error("The address \"" + address + "\" isn't known here; write it like 127.0.0.1:8640.");
    return found.begin()->endpoint();
}
} // namespace

class Server::Impl
{
public:
    Impl(ServerSettings settings, Application& application)
        : state(std::move(settings), application), context(static_cast<int>(threadCount)),
          acceptor(asio::make_strand(context))
    {
        openTls();
        const auto endpoint = resolve(context, state.settings.listen);
        boost::system::error_code error;
        acceptor.open(endpoint.protocol());
        acceptor.set_option(tcp::acceptor::reuse_address(true));
        acceptor.bind(endpoint, error);
        if (!error)
            acceptor.listen(tcp::acceptor::max_listen_connections, error);
        if (error)
            throw std::runtime_error("Can't listen on " + state.settings.listen + ": " + error.message() + ".");
        const auto bound = acceptor.local_endpoint();
        const auto host = bound.address().to_string();
        boundAddress = (bound.address().is_v6() ? "[" + host + "]" : host) + ":" + std::to_string(bound.port());
    }

    ~Impl() { stop(); }

    void start()
    {
        asio::co_spawn(acceptor.get_executor(), acceptAll(), asio::detached);
        for (std::size_t i = 0; i < threadCount; ++i)
            threads.emplace_back([this] { runLoop(); });
    }

    void stop()
    {
        if (threads.empty())
            return;
        state.stopping = true;
        asio::post(acceptor.get_executor(), [this] {
            boost::system::error_code ignored;
            acceptor.close(ignored);
        });
        state.waitUntilIdle(state.settings.limits.shutdown);
        context.stop();
        for (std::thread& thread : threads)
            thread.join();
        threads.clear();
        state.workers.join();
        state.hashers.join();
    }

    const std::string& address() const { return boundAddress; }

private:
    void openTls()
    {
        const auto& settings = state.settings;
        if (settings.tlsCertificate.empty() && settings.tlsKey.empty())
            return;
        if (settings.tlsCertificate.empty() || settings.tlsKey.empty())
            throw std::runtime_error("TLS needs both --tls-cert and --tls-key.");
        tls.emplace(asio::ssl::context::tls_server);
        boost::system::error_code error;
        tls->set_options(asio::ssl::context::default_workarounds | asio::ssl::context::no_tlsv1 |
                         asio::ssl::context::no_tlsv1_1 | asio::ssl::context::no_compression);
        tls->use_certificate_chain_file(settings.tlsCertificate, error);
        if (error)
            throw std::runtime_error("The certificate " + settings.tlsCertificate +
                                     " can't be used: " + error.message() + ".");
        tls->use_private_key_file(settings.tlsKey, asio::ssl::context::pem, error);
        if (error)
            throw std::runtime_error("The key " + settings.tlsKey + " can't be used: " + error.message() + ".");
    }

    /// Whatever escapes a handler must not take the service down with it.
    void runLoop()
    {
        while (true) {
            try {
                context.run();
                return;
            } catch (const std::exception& error) {
                state.log(std::string("error: ") + error.what());
            }
        }
    }

    asio::awaitable<void> acceptAll()
    {
        while (!state.stopping) {
            auto [error, socket] =
                co_await acceptor.async_accept(asio::make_strand(context), asio::as_tuple(asio::use_awaitable));
            if (error == asio::error::operation_aborted || !acceptor.is_open())
                co_return;
            if (error) {
                // Out of descriptors, mostly: connections that end give some back.
                asio::steady_timer pause(acceptor.get_executor(), std::chrono::milliseconds(100));
                co_await pause.async_wait(asio::as_tuple(asio::use_awaitable));
                continue;
            }
            const auto executor = socket.get_executor();
            asio::co_spawn(executor, serveConnection(std::move(socket), state, tls ? &*tls : nullptr), asio::detached);
        }
    }

    ServerState state;
    std::optional<asio::ssl::context> tls;
    asio::io_context context; // goes before what its suspended connections refer to
    tcp::acceptor acceptor;   // on a strand of its own, where it is also closed
    std::string boundAddress;
    std::vector<std::thread> threads;
};

Server::Server(ServerSettings settings, Application& application)
    : impl(std::make_unique<Impl>(std::move(settings), application))
{
}

Server::~Server() = default;

void Server::start()
{
    impl->start();
}

void Server::stop()
{
    impl->stop();
}

std::string Server::address() const
{
    return impl->address();
}

} // namespace orvcloud
