// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include "transport/http_call_dispatcher.h"
#include "transport/tcp_connection.h"
#include "transport/tracer.h"

namespace hessiancln {

/// One request and its response on their own connection, all on one thread. Only the dispatcher
/// includes this header.
class HttpExchange {
public:
    /// Throws `boost::system::system_error`.
    HttpExchange(bool useTls, const HttpLimits& limits, Tracer trace);

    /// Throws `invoke_exception`.
    void connect(const std::string& host, std::uint32_t port);

    /// Sends `body`, returns the body of the response and closes the connection. Throws
    /// `invoke_exception` unless the response is complete with status 200.
    std::string post(const std::string& host, std::uint32_t port, const std::string& path,
                     const std::string& body);

    /// Closes the connection from another thread and prevents further sending. The running
    /// operation then throws; a name resolution does so only when it completes.
    void abandon();

private:
    using ResponseParser = boost::beast::http::response_parser<boost::beast::http::string_body>;

    template <class Stream>
    void exchange(Stream& stream, const std::string& request, ResponseParser& parser);
    ErrorCode send(const std::string& request);
    template <class Stream>
    ErrorCode receive(Stream& stream, ResponseParser& parser);

    /// Starts an asynchronous operation with the completion to call, and waits for its end or for
    /// the time-out.
    ErrorCode await(const std::function<void(TcpConnection::Completion)>& start);

    boost::asio::io_context io_{1};
    boost::asio::ssl::context context_;
    HttpLimits limits_;
    const Tracer trace_;
    std::atomic<bool> abandoned_ = false;
    boost::asio::steady_timer timer_;
    TcpConnection connection_;
};

} // namespace hessiancln
