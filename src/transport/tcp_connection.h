// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/write.hpp>
#include <boost/shared_ptr.hpp>

/// What both transports share of the network. Only sources of this folder and their tests include
/// this header, so that Asio stays in here.
namespace hessiancln {

using ErrorCode = boost::system::error_code;

/// A context that negotiates the version, compresses nothing, verifies nobody, and wipes what it
/// has decrypted once that was read.
boost::asio::ssl::context makeTlsContext();

/// One TCP connection, plain or with TLS. Runs on one thread.
class TcpConnection {
public:
    using Socket = boost::asio::ip::tcp::socket;
    using TlsStream = boost::asio::ssl::stream<Socket>;
    using Endpoints = boost::asio::ip::tcp::resolver::results_type;
    using Completion = std::function<void(const ErrorCode&)>;
    using Resolved = std::function<void(const ErrorCode&, const Endpoints&)>;
    using FinishedHandler = std::function<void()>;

    /// `finished`, which may be empty, is called by `finish`. Raises a standard exception if the
    /// system has no room for one more.
    TcpConnection(boost::asio::io_context& io, boost::asio::ssl::context& context, bool useTls,
                  FinishedHandler finished = {});

    bool useTls() const { return useTls_; }
    Socket& socket() { return stream_.next_layer(); }
    TlsStream& tlsStream() { return stream_; }

    /// Blocks for as long as the system's resolver does.
    static Endpoints resolve(const std::string& host, std::uint32_t port, ErrorCode& error);

    /// Resolves a name on a thread of its own, which nobody has to wait for, and a number at once.
    /// `owner` is what the context and this object live in.
    void asyncResolve(const std::string& host, std::uint32_t port,
                      const boost::shared_ptr<void>& owner, Resolved completion);

    void asyncConnect(const Endpoints& endpoints, Completion completion);
    void asyncHandshake(Completion completion);

    /// Reads until the buffer is full.
    template <class Buffer, class Handler>
    void asyncRead(const Buffer& buffer, Handler handler) {
        if (useTls_)
            boost::asio::async_read(stream_, buffer, std::move(handler));
        else
            boost::asio::async_read(socket(), buffer, std::move(handler));
    }

    /// Writes the whole buffer.
    template <class Buffer, class Handler>
    void asyncWrite(const Buffer& buffer, Handler handler) {
        if (useTls_)
            boost::asio::async_write(stream_, buffer, std::move(handler));
        else
            boost::asio::async_write(socket(), buffer, std::move(handler));
    }

    /// Ends both directions and leaves the socket open. Operations under way end with an error.
    void shutDown();

    /// Never waits for the other side, so TLS isn't closed down with it.
    void close();

    /// Closes, and tells the finished handler.
    void finish();

private:
    TlsStream stream_;
    bool useTls_;
    FinishedHandler finished_;
};

/// The texts of a connection that didn't come up.
std::string connectFailure(const std::string& host, std::uint32_t port, const ErrorCode& error);
std::string handshakeFailure(const ErrorCode& error);

} // namespace hessiancln
