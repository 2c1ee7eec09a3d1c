#include "cloud/Client.h"

#include <algorithm>
#include <boost/asio.hpp>
#include <gtest/gtest.h>

namespace orvcloud::testing
{
namespace asio = boost::asio;
using asio::ip::tcp;

class RawConnection::Impl
{
public:
    explicit Impl(const std::string& url) : socket(context)
    {
        const auto host = url.substr(url.find("://") + 3);
        const auto colon = host.rfind(':');
        const auto port = static_cast<std::uint16_t>(std::stoi(host.substr(colon + 1)));
        socket.connect({asio::ip::make_address(host.substr(0, colon)), port});
    }

    asio::io_context context;
    tcp::socket socket;
    std::string received;
};

RawConnection::RawConnection(const std::string& url) : impl(std::make_unique<Impl>(url)) {}
RawConnection::~RawConnection() = default;

void RawConnection::send(std::string_view bytes)
{
    boost::system::error_code ignored; // a server that refuses early may end the connection meanwhile
    asio::write(impl->socket, asio::buffer(bytes.data(), bytes.size()), ignored);
}

Reply RawConnection::receiveHead()
{
    Reply reply;
    boost::system::error_code error;
    auto buffer = asio::dynamic_buffer(impl->received);
    const std::size_t headerSize = asio::read_until(impl->socket, buffer, "\r\n\r\n", error);
    if (error)
        return reply;
    std::string header = impl->received.substr(0, headerSize);
    impl->received.erase(0, headerSize);
    reply.status = std::stoi(header.substr(header.find(' ') + 1));
    for (std::size_t at = header.find("\r\n") + 2; at + 2 < header.size();) {
        const auto end = header.find("\r\n", at);
        const auto colon = header.find(':', at);
        std::string name = header.substr(at, colon - at);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](char c) { return static_cast<char>(std::tolower(c)); });
        reply.headers[name] = header.substr(colon + 2, end - colon - 2);
        at = end + 2;
    }
    return reply;
}

Reply RawConnection::receive()
{
    Reply reply = receiveHead();
    boost::system::error_code error;
    auto buffer = asio::dynamic_buffer(impl->received);
    const auto length = reply.headers.find("content-length");
    const std::size_t size = length == reply.headers.end() ? 0 : std::stoul(length->second);
    if (impl->received.size() < size)
        asio::read(impl->socket, buffer, asio::transfer_exactly(size - impl->received.size()), error);
    reply.body = impl->received.substr(0, size);
    impl->received.erase(0, size);
    return reply;
}

std::size_t RawConnection::readSome(std::size_t most)
{
    std::string bytes(most, '\0');
    boost::system::error_code error;
    return impl->socket.read_some(asio::buffer(bytes), error);
}

bool RawConnection::isClosed()
{
    char byte = 0;
    boost::system::error_code error;
    const std::size_t count = asio::read(impl->socket, asio::buffer(&byte, 1), error);
    return impl->received.empty() && count == 0 && error;
}

std::string encode(std::string_view text)
{
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0 || c == '-' || c == '.' || c == '_' || c == '~') {
            result += c;
        } else {
            result += '%';
            result += hex[byte >> 4];
            result += hex[byte & 15];
        }
    }
    return result;
}

std::string encodeForm(const Fields& fields)
{
    std::string form;
    for (const auto& [name, value] : fields)
        form.append(form.empty() ? "" : "&").append(encode(name)).append("=").append(encode(value));
    return form;
}

std::string encodeMultipart(const Fields& fields, const std::string* file, std::string_view boundary)
{
    std::string body;
    const auto open = [&] { return body.append("--").append(boundary).append("\r\n"); };
    for (const auto& [name, value] : fields) {
        open();
        body.append("Content-Disposition: form-data; name=\"").append(name).append("\"\r\n\r\n");
        body.append(value).append("\r\n");
    }
    if (file) {
        open();
        body.append("Content-Disposition: form-data; name=\"file\"; filename=\"x\"\r\n");
        body.append("Content-Type: application/octet-stream\r\n\r\n").append(*file).append("\r\n");
    }
    return body.append("--").append(boundary).append("--\r\n");
}

Reply sendRequest(const std::string& url, std::string_view method, std::string_view target, const Fields& headers,
                  std::string_view body)
{
    RawConnection connection(url);
    std::string text;
    text.append(method).append(" ").append(target).append(" HTTP/1.1\r\nHost: service\r\n");
    for (const auto& [name, value] : headers)
        text.append(name).append(": ").append(value).append("\r\n");
    if (method == "POST")
        text.append("Content-Length: ").append(std::to_string(body.size())).append("\r\n");
    connection.send(text.append("\r\n").append(body));
    return connection.receive();
}

} // namespace orvcloud::testing
