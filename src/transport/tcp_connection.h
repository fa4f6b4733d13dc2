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
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/write.hpp>
#include <boost/shared_ptr.hpp>

/// The network code shared by both transports. Only sources of this folder and their tests include
/// this header, so that Asio stays in here.
namespace hessiancln {

using ErrorCode = boost::system::error_code;

/// A context that negotiates the version, disables compression, verifies no peer, and wipes
/// decrypted data once it has been read.
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

    /// `finish` calls `finished`, which may be empty. Throws a standard exception if the system has
    /// no resources for another connection.
    TcpConnection(boost::asio::io_context& io, boost::asio::ssl::context& context, bool useTls,
                  FinishedHandler finished = {});

    bool useTls() const { return useTls_; }
    Socket& socket() { return stream_.next_layer(); }
    TlsStream& tlsStream() { return stream_; }

    /// Blocks as long as the system's resolver does.
    static Endpoints resolve(const std::string& host, std::uint32_t port, ErrorCode& error);

    /// Resolves a name on a detached thread, a numeric address immediately. `owner` holds the
    /// context and this object.
    void asyncResolve(const std::string& host, std::uint32_t port,
                      const boost::shared_ptr<void>& owner, Resolved completion);

    void asyncConnect(const Endpoints& endpoints, Completion completion);
    void asyncHandshake(Completion completion);

    /// Reads until the buffer is full.
    template <class Buffer, class Handler>
    void asyncRead(const Buffer& buffer, Handler handler) {
        const auto completion = [this, handler = std::move(handler)](const ErrorCode& error,
                                                                     std::size_t size) {
            handler(readError(error), size);
        };
        if (useTls_)
            boost::asio::async_read(stream_, buffer, completion);
        else
            boost::asio::async_read(socket(), buffer, completion);
    }

    /// Writes the whole buffer.
    template <class Buffer, class Handler>
    void asyncWrite(const Buffer& buffer, Handler handler) {
        if (useTls_)
            boost::asio::async_write(stream_, buffer, std::move(handler));
        else
            boost::asio::async_write(socket(), buffer, std::move(handler));
    }

    /// Shuts down both directions and leaves the socket open.
    void shutDown();

    /// The same, for a stream that can't be written any more: a pending read takes what has arrived
    /// and then ends as if the peer had closed, on some systems only after a moment.
    void endReading();

    /// Never waits for the peer, so there is no TLS shutdown.
    void close();

    /// Closes the connection and calls the finished handler.
    void finish();

private:
    ErrorCode readError(const ErrorCode& error) const;

    TlsStream stream_;
    boost::asio::steady_timer lastMoment_;
    bool readingEnded_ = false;
    bool useTls_;
    FinishedHandler finished_;
};

/// The error text for a connection that didn't come up.
std::string connectFailure(const std::string& host, std::uint32_t port, const ErrorCode& error);
std::string handshakeFailure(const ErrorCode& error);

} // namespace hessiancln
