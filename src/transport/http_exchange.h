// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/parser.hpp>

#include "base/secret.h"
#include "transport/http_call_dispatcher.h"
#include "transport/tcp_connection.h"
#include "transport/tracer.h"
#include "transport/wiped_body.h"

namespace hessiancln {

/// One request and its response on their own connection. Owned by a shared pointer. Only the
/// dispatcher includes this header.
class HttpExchange : public std::enable_shared_from_this<HttpExchange> {
public:
    /// Throws `boost::system::system_error`.
    HttpExchange(bool useTls, const HttpLimits& limits, Tracer trace);

    /// Begins to send `body`. All further work is done by the thread that runs the exchange.
    void start(const std::string& host, std::uint32_t port, const std::string& path,
               const std::string& body);

    /// Runs the exchange to its end. May follow `runFor` on another thread.
    void run() { io_.run(); }
    /// Runs the exchange for this time at most. Returns whether it has ended.
    bool runFor(std::chrono::milliseconds time);

    /// Moves out the body of the response, after the end. Throws `invoke_exception` unless the
    /// response is complete with status 200.
    std::string takeReply();

    /// Closes the connection from another thread and prevents further sending. The exchange then
    /// fails; during a name resolution it does so only when that completes.
    void abandon();

private:
    /// The reply may hold a key, so both the buffer that it is read into and its body are wiped.
    using ResponseParser = boost::beast::http::response_parser<WipedBody>;
    /// What follows an operation.
    using Next = void (HttpExchange::*)(const ErrorCode&);

    /// Starts an asynchronous operation with the completion to call. `next` follows its end or the
    /// time-out.
    void operate(const std::function<void(TcpConnection::Completion)>& operation, Next next);
    /// Whatever `work` throws ends the exchange.
    void step(const std::function<void()>& work);

    void resolved(const ErrorCode& error, const TcpConnection::Endpoints& endpoints);
    void connected(const ErrorCode& error);
    void handshakeDone(const ErrorCode& error);
    void send();
    void sent(const ErrorCode& error);
    void receive();
    void receivedSome(const ErrorCode& error);
    void received(ErrorCode error);
    void end(std::exception_ptr failure);

    boost::asio::io_context io_{1};
    /// Keeps `run` from returning while a name is being resolved.
    std::optional<boost::asio::executor_work_guard<boost::asio::io_context::executor_type>> work_;
    boost::asio::ssl::context context_;
    HttpLimits limits_;
    const Tracer trace_;
    std::atomic<bool> abandoned_ = false;
    boost::asio::steady_timer timer_;
    TcpConnection connection_;

    std::string host_;
    std::uint32_t port_ = 0;
    std::string request_;
    const base::WipedAtEnd requestGuard_{request_};
    std::size_t sentSize_ = 0;
    ErrorCode sendError_;
    boost::beast::basic_flat_buffer<base::WipingAllocator<char>> buffer_;
    ResponseParser parser_;

    std::uint64_t operation_ = 0; ///< number of the latest one
    bool operating_ = false;
    bool timedOut_ = false;
    bool ended_ = false;
    std::exception_ptr failure_;
};

} // namespace hessiancln
