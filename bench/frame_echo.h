// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/stream.hpp>

#include "server_process.h"

/// The two ends that the transport is measured with, both of blocking Asio and as bare as can be.
namespace bench {

/// Bytes of the message that answers a call to an address which ends in `largeReplyPath`.
inline constexpr std::size_t largeReplySize = 64 << 20;
inline constexpr char largeReplyPath[] = "/large";

/// Answers each request frame over TLS: with a large message where one is asked for, otherwise
/// with the message of the request.
void serveFrames(const ServerProcess::Listening& listening);

/// The reference: frames written and read on the calling thread. It believes in lengths and
/// doesn't look at checksums. Raises `boost::system::system_error`.
class BareStream {
public:
    struct Reply {
        std::size_t size = 0;
        std::unique_ptr<char[]> bytes; ///< with the checksum behind them
    };

    /// Connects to loopback.
    explicit BareStream(std::uint16_t port);

    Reply call(const std::string& url, const std::string& message);

private:
    boost::asio::io_context io_{1};
    boost::asio::ssl::context context_;
    boost::asio::ssl::stream<boost::asio::ip::tcp::socket> stream_;
    std::uint32_t lastId_ = 0;
};

} // namespace bench
