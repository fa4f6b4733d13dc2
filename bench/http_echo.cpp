// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "http_echo.h"

#include <functional>
#include <utility>

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>
#include <boost/beast/http/write.hpp>

#include "simulator/wire/certificate.h"

namespace bench {

namespace asio = boost::asio;
namespace http = boost::beast::http;
using asio::ip::tcp;

namespace {

using Stream = asio::ssl::stream<tcp::socket>;

void close(Stream& stream) {
    boost::system::error_code ignored;
    stream.shutdown(ignored);
    stream.next_layer().close(ignored);
}

void answerOne(tcp::socket socket, asio::ssl::context& context) {
    socket.set_option(tcp::no_delay(true));
    Stream stream(std::move(socket), context);
    stream.handshake(asio::ssl::stream_base::server);
    boost::beast::flat_buffer buffer;
    http::request<http::string_body> request;
    http::read(stream, buffer, request);
    http::response<http::string_body> response(http::status::ok, 11, std::move(request.body()));
    response.prepare_payload();
    http::write(stream, response);
    close(stream);
}

} // namespace

void serveHttp(const ServerProcess::Listening& listening) {
    asio::ssl::context context = simulator::wire::selfSignedContext();
    asio::io_context io(1);
    tcp::acceptor acceptor(io, {asio::ip::address_v4::loopback(), 0});
    listening(acceptor.local_endpoint().port());
    for (;;) {
        try {
            answerOne(acceptor.accept(), context);
        } catch (const boost::system::system_error&) {
            // The client disconnected midway.
        }
    }
}

BareHttp::BareHttp(std::uint16_t port)
    : context_(asio::ssl::context::sslv23)
    , port_(port) {}

std::string BareHttp::call(const std::string& path, const std::string& message) {
    Stream stream(io_, context_);
    stream.next_layer().connect({asio::ip::address_v4::loopback(), port_});
    stream.next_layer().set_option(tcp::no_delay(true));
    stream.handshake(asio::ssl::stream_base::client);
    http::request<http::string_body> request(http::verb::post, path, 11, message);
    request.set(http::field::host, "127.0.0.1:" + std::to_string(port_));
    request.prepare_payload();
    http::write(stream, request);
    boost::beast::flat_buffer buffer;
    http::response<http::string_body> response;
    http::read(stream, buffer, response);
    close(stream);
    return std::move(response.body());
}

} // namespace bench
