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

/// The two ends for the transport benchmark, both minimal code on blocking Asio.
namespace bench {

/// Message size of the reply to a call whose address ends in `largeReplyPath`.
inline constexpr std::size_t largeReplySize = 64 << 20;
inline constexpr char largeReplyPath[] = "/large";

/// Answers each request frame over TLS: with a large message if requested, otherwise with the
/// message of the request.
void serveFrames(const ServerProcess::Listening& listening);

/// The reference: writes and reads frames on the calling thread. It trusts lengths and ignores
/// checksums. Throws `boost::system::system_error`.
class BareStream {
public:
    struct Reply {
        std::size_t size = 0;
        std::unique_ptr<char[]> bytes; ///< followed by the checksum
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
