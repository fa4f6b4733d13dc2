// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ssl/context.hpp>

#include "server_process.h"

/// The same as the bare stream for calls over HTTPS, each on a connection of its own.
namespace bench {

/// Answers each POST over TLS with the body of the request, and closes the connection.
void serveHttp(const ServerProcess::Listening& listening);

/// The reference: connects, posts and reads on the calling thread, with blocking Asio and Beast.
class BareHttp {
public:
    explicit BareHttp(std::uint16_t port);

    /// Raises `boost::system::system_error`.
    std::string call(const std::string& path, const std::string& message);

private:
    boost::asio::io_context io_{1};
    boost::asio::ssl::context context_;
    std::uint16_t port_;
};

} // namespace bench
