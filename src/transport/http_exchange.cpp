// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/http_exchange.h"

#include <optional>
#include <sstream>
#include <utility>

#include <boost/asio/post.hpp>
#include <boost/asio/ssl/error.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>

#include "base/secret.h"
#include "transport/invoke_exception.h"
#include "transport/plain_file_logger.h"

namespace hessiancln {

namespace asio = boost::asio;
namespace http = boost::beast::http;

namespace {

asio::ssl::context tracedTlsContext(const Tracer& trace) {
    asio::ssl::context context = makeTlsContext();
    trace.detail("boost::asio::ssl::context created");
    return context;
}

invoke_exception failure(const char* what, const ErrorCode& error) {
    return invoke_exception() << what << ". Error " << error.value() << " (" << error.message()
                              << ")";
}

/// The reason phrase as received. `reason()` of the response would replace an empty one with the
/// standard phrase.
std::string reasonAsSent(const http::fields& fields) {
    struct Opened : http::fields {
        static auto reason() { return &Opened::get_reason_impl; }
    };
    return std::string((fields.*Opened::reason())());
}

std::string requestHead(const std::string& host, std::uint32_t port, const std::string& path,
                        std::size_t bodySize) {
    http::request<http::empty_body> request(http::verb::post, path, 11);
    request.set(http::field::host, host + ":" + std::to_string(port));
    request.set(http::field::user_agent, "NorvelHessianCln/1.0");
    request.content_length(bodySize);
    std::ostringstream head;
    head.exceptions(std::ios::badbit); // a failed allocation would truncate the head silently
    head << request.base();
    return head.str();
}

} // namespace

HttpExchange::HttpExchange(bool useTls, const HttpLimits& limits, Tracer trace)
    : context_(tracedTlsContext(trace))
    , limits_(limits)
    , trace_(std::move(trace))
    , timer_(io_)
    , connection_(io_, context_, useTls) {}

void HttpExchange::connect(const std::string& host, std::uint32_t port) {
    ErrorCode error;
    const TcpConnection::Endpoints endpoints = connection_.resolve(host, port, error);
    if (!error)
        error = await([&](auto completion) { connection_.asyncConnect(endpoints, completion); });
    if (error) {
        trace_.detail("connect: ", error.value(), " msg: ", error.message());
        throw invoke_exception(connectFailure(host, port, error));
    }
    trace_.detail("connected: ", host);

    if (connection_.useTls()) {
        error = await([&](auto completion) { connection_.asyncHandshake(completion); });
        if (error) {
            trace_.detail("SSL Handshake: ", error.value(), " msg: ", error.message());
            throw invoke_exception(handshakeFailure(error));
        }
    }
}

std::string HttpExchange::post(const std::string& host, std::uint32_t port, const std::string& path,
                               const std::string& body) {
    // A single buffer: the body may hold a password, and TLS would merge several buffers on the
    // stack.
    std::string request = requestHead(host, port, path, body.size());
    request.reserve(request.size() + body.size());
    request += body;
    const base::WipedAtEnd guard(request);

    ResponseParser parser;
    parser.body_limit(limits_.largestContent);
    if (connection_.useTls())
        exchange(connection_.tlsStream(), request, parser);
    else
        exchange(connection_.socket(), request, parser);
    connection_.finish();

    auto& response = parser.get();
    if (response.result_int() != 200) {
        throw invoke_exception() << "Server returned status code " << response.result_int() << " ("
                                 << reasonAsSent(response) << ")";
    }
    return std::move(response.body());
}

template <class Stream>
void HttpExchange::exchange(Stream& stream, const std::string& request, ResponseParser& parser) {
    // A server may refuse a request before it has read all of it, so a failed write doesn't mean
    // that there is no response.
    const ErrorCode sent = send(request);
    const ErrorCode received = receive(stream, parser);
    if (received && sent)
        throw failure("Failed to send the HTTP request", sent);
    if (received)
        throw failure("Failed to receive the HTTP response", received);
}

ErrorCode HttpExchange::send(const std::string& request) {
    std::size_t sent = 0;
    const ErrorCode error = await([&](auto completion) {
        connection_.asyncWrite(asio::buffer(request),
                               [&sent, completion](const ErrorCode& result, std::size_t size) {
                                   sent = size;
                                   completion(result);
                               });
    });
    auto& logger = pion::PlainFileLogger::instance();
    if (logger.admits(pion::PlainFileLogger::debug)) {
        logger.log(pion::PlainFileLogger::debug,
                   "Sent HTTP request chunk of " + std::to_string(sent) + " bytes");
    }
    return error;
}

template <class Stream>
ErrorCode HttpExchange::receive(Stream& stream, ResponseParser& parser) {
    // The reply may hold a key, which the parser copies out of this buffer.
    boost::beast::basic_flat_buffer<base::WipingAllocator<char>> buffer;
    ErrorCode error;
    while (!error && !parser.is_done()) {
        error = await([&](auto completion) {
            http::async_read_some(
                stream, buffer, parser,
                [completion](const ErrorCode& result, std::size_t) { completion(result); });
        });
    }
    // Many servers close a TLS connection without a close_notify. As on a plain connection, that
    // ends a body of unknown length and truncates any other.
    if (error == asio::ssl::error::stream_truncated && parser.got_some()) {
        error = {};
        parser.put_eof(error);
    }
    return error;
}

void HttpExchange::abandon() {
    abandoned_ = true;
    asio::post(io_, [this] { connection_.close(); });
}

ErrorCode HttpExchange::await(const std::function<void(TcpConnection::Completion)>& start) {
    if (abandoned_)
        return asio::error::operation_aborted;
    std::optional<ErrorCode> result;
    bool timedOut = false;
    bool timerDone = false;

    timer_.expires_after(limits_.readTimeout);
    timer_.async_wait([&](const ErrorCode& cancelled) {
        timerDone = true;
        if (!cancelled && !result) {
            timedOut = true;
            connection_.close();
        }
    });
    start([&](const ErrorCode& error) {
        result = error;
        timer_.cancel();
    });
    io_.restart();
    while (!result || !timerDone)
        io_.run_one();
    return timedOut ? ErrorCode(asio::error::timed_out) : *result;
}

} // namespace hessiancln
