// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/http_exchange.h"

#include <sstream>
#include <utility>

#include <boost/asio/post.hpp>
#include <boost/asio/ssl/error.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <boost/smart_ptr/shared_ptr.hpp>

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
    , connection_(io_, context_, useTls) {
    parser_.body_limit(limits_.largestContent);
}

void HttpExchange::start(const std::string& host, std::uint32_t port, const std::string& path,
                         const std::string& body) {
    host_ = host;
    port_ = port;
    // A single buffer: the body may hold a password, and TLS would merge several buffers on the
    // stack.
    const std::string head = requestHead(host, port, path, body.size());
    request_.reserve(head.size() + body.size());
    request_ += head;
    request_ += body;
    work_.emplace(io_.get_executor());
    const boost::shared_ptr<void> owner(this, [self = shared_from_this()](void*) {});
    connection_.asyncResolve(
        host, port, owner,
        [this](const ErrorCode& error, const TcpConnection::Endpoints& endpoints) {
            step([&] { resolved(error, endpoints); });
        });
}

bool HttpExchange::runFor(std::chrono::milliseconds time) {
    io_.run_for(time);
    return ended_;
}

std::string HttpExchange::takeReply() {
    if (failure_)
        std::rethrow_exception(std::exchange(failure_, nullptr));
    return std::move(parser_.get().body().text);
}

void HttpExchange::abandon() {
    abandoned_ = true;
    asio::post(io_, [this] { connection_.close(); });
}

void HttpExchange::operate(const std::function<void(TcpConnection::Completion)>& operation,
                           Next next) {
    if (abandoned_) {
        (this->*next)(asio::error::operation_aborted);
        return;
    }
    operating_ = true;
    timedOut_ = false;
    timer_.expires_after(limits_.readTimeout);
    timer_.async_wait([this, number = ++operation_](const ErrorCode& cancelled) {
        // A timer that expires while its operation ends isn't cancelled any more.
        if (!cancelled && operating_ && number == operation_) {
            timedOut_ = true;
            connection_.close();
        }
    });
    operation([this, next](const ErrorCode& error) {
        if (ended_)
            return;
        operating_ = false;
        timer_.cancel();
        step([&] { (this->*next)(timedOut_ ? ErrorCode(asio::error::timed_out) : error); });
    });
}

void HttpExchange::step(const std::function<void()>& work) {
    try {
        work();
    } catch (...) {
        end(std::current_exception());
    }
}

void HttpExchange::resolved(const ErrorCode& error, const TcpConnection::Endpoints& endpoints) {
    if (error) {
        connected(error);
        return;
    }
    operate([&](auto completion) { connection_.asyncConnect(endpoints, completion); },
            &HttpExchange::connected);
}

void HttpExchange::connected(const ErrorCode& error) {
    if (error) {
        trace_.detail("connect: ", error.value(), " msg: ", error.message());
        throw invoke_exception(connectFailure(host_, port_, error));
    }
    trace_.detail("connected: ", host_);
    if (connection_.useTls())
        operate([&](auto completion) { connection_.asyncHandshake(completion); },
                &HttpExchange::handshakeDone);
    else
        send();
}

void HttpExchange::handshakeDone(const ErrorCode& error) {
    if (error) {
        trace_.detail("SSL Handshake: ", error.value(), " msg: ", error.message());
        throw invoke_exception(handshakeFailure(error));
    }
    send();
}

void HttpExchange::send() {
    operate(
        [&](auto completion) {
            connection_.asyncWrite(asio::buffer(request_),
                                   [this, completion](const ErrorCode& error, std::size_t size) {
                                       sentSize_ = size;
                                       completion(error);
                                   });
        },
        &HttpExchange::sent);
}

void HttpExchange::sent(const ErrorCode& error) {
    auto& logger = pion::PlainFileLogger::instance();
    if (logger.admits(pion::PlainFileLogger::debug)) {
        logger.log(pion::PlainFileLogger::debug,
                   "Sent HTTP request chunk of " + std::to_string(sentSize_) + " bytes");
    }
    // A server may refuse a request before it has read all of it, so a failed write doesn't mean
    // that there is no response.
    sendError_ = error;
    receive();
}

void HttpExchange::receive() {
    operate(
        [&](auto completion) {
            const auto handler = [completion](const ErrorCode& error, std::size_t) {
                completion(error);
            };
            if (connection_.useTls())
                http::async_read_some(connection_.tlsStream(), buffer_, parser_, handler);
            else
                http::async_read_some(connection_.socket(), buffer_, parser_, handler);
        },
        &HttpExchange::receivedSome);
}

void HttpExchange::receivedSome(const ErrorCode& error) {
    if (error || parser_.is_done())
        received(error);
    else
        receive();
}

void HttpExchange::received(ErrorCode error) {
    // Many servers close a TLS connection without a close_notify. As on a plain connection, that
    // ends a body of unknown length and truncates any other.
    if (error == asio::ssl::error::stream_truncated && parser_.got_some()) {
        error = {};
        parser_.put_eof(error);
    }
    if (error && sendError_)
        throw failure("Failed to send the HTTP request", sendError_);
    if (error)
        throw failure("Failed to receive the HTTP response", error);
    connection_.finish();

    const auto& response = parser_.get();
    if (response.result_int() != 200) {
        throw invoke_exception() << "Server returned status code " << response.result_int() << " ("
                                 << reasonAsSent(response) << ")";
    }
    end(nullptr);
}

void HttpExchange::end(std::exception_ptr failure) {
    ended_ = true;
    failure_ = std::move(failure);
    // A failure may leave an operation running, on which `run` would wait.
    timer_.cancel();
    connection_.close();
    work_.reset();
}

} // namespace hessiancln
