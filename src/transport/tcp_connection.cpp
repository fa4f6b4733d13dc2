// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/tcp_connection.h"

#include <chrono>
#include <limits>
#include <new>
#include <thread>

#include <boost/asio/connect.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/ssl/error.hpp>

#include "transport/tls_thread.h"

namespace hessiancln {

namespace asio = boost::asio;

namespace {

/// As in "111 (Connection refused)".
std::string describe(const ErrorCode& error) {
    return std::to_string(error.value()) + " (" + error.message() + ")";
}

bool isNumeric(const std::string& host) {
    ErrorCode error;
    asio::ip::make_address(host, error);
    return !error;
}

/// Posts as soon as there is memory for it: the caller waits for nothing else.
template <class Post>
void postAtLast(const Post& post) {
    for (;;) {
        try {
            post();
            return;
        } catch (const std::bad_alloc&) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
}

} // namespace

asio::ssl::context makeTlsContext() {
    asio::ssl::context context(asio::ssl::context::sslv23);
    context.set_options(asio::ssl::context::no_compression | SSL_OP_CLEANSE_PLAINTEXT);
    return context;
}

TcpConnection::TcpConnection(asio::io_context& io, asio::ssl::context& context, bool useTls,
                             FinishedHandler finished)
    : stream_(io, context)
    , lastMoment_(io)
    , useTls_(useTls)
    , finished_(std::move(finished)) {}

TcpConnection::Endpoints TcpConnection::resolve(const std::string& host, std::uint32_t port,
                                                ErrorCode& error) {
    // The system's resolver would wrap a larger number to another port.
    if (port > std::numeric_limits<std::uint16_t>::max()) {
        error = asio::error::service_not_found;
        return {};
    }
    asio::io_context io;
    asio::ip::tcp::resolver resolver(io);
    return resolver.resolve(host, std::to_string(port), asio::ip::resolver_base::numeric_service,
                            error);
}

void TcpConnection::asyncResolve(const std::string& host, std::uint32_t port,
                                 const boost::shared_ptr<void>& owner, Resolved completion) {
    const auto post = [completion = std::move(completion), executor = stream_.get_executor()](
                          const ErrorCode& error, const Endpoints& endpoints) {
        asio::post(executor, [=] { completion(error, endpoints); });
    };
    const auto resolveAndPost = [host, port, post] {
        ErrorCode error;
        const Endpoints endpoints = resolve(host, port, error);
        post(error, endpoints);
    };
    if (isNumeric(host)) {
        resolveAndPost();
        return;
    }
    // A name resolution can't be cancelled. The thread is then abandoned with its share in the
    // owner, and the result that it posts never runs.
    std::thread(tlsThread([owner, resolveAndPost, post] {
        try {
            resolveAndPost();
        } catch (const std::bad_alloc&) {
            postAtLast([&post] { post(asio::error::no_memory, {}); });
        }
    })).detach();
}

void TcpConnection::asyncConnect(const Endpoints& endpoints, Completion completion) {
    asio::async_connect(socket(), endpoints,
                        [this, completion = std::move(completion)](const ErrorCode& error,
                                                                   const asio::ip::tcp::endpoint&) {
                            if (!error) {
                                // A call is one small write; it must not wait for the
                                // acknowledgement of the previous one.
                                ErrorCode ignored;
                                socket().set_option(asio::ip::tcp::no_delay(true), ignored);
                            }
                            completion(error);
                        });
}

void TcpConnection::asyncHandshake(Completion completion) {
    stream_.async_handshake(TlsStream::client, std::move(completion));
}

void TcpConnection::shutDown() {
    ErrorCode ignored;
    socket().shutdown(Socket::shutdown_both, ignored);
}

void TcpConnection::endReading() {
    shutDown();
    // Where a shutdown doesn't end a pending read.
    lastMoment_.expires_after(std::chrono::milliseconds(500));
    lastMoment_.async_wait([this](const ErrorCode& cancelled) {
        if (cancelled)
            return;
        readingEnded_ = true;
        ErrorCode ignored;
        socket().cancel(ignored);
    });
}

ErrorCode TcpConnection::readError(const ErrorCode& error) const {
    if (!readingEnded_ || error != asio::error::operation_aborted)
        return error;
    return useTls_ ? ErrorCode(asio::ssl::error::stream_truncated) : ErrorCode(asio::error::eof);
}

void TcpConnection::close() {
    ErrorCode ignored;
    socket().shutdown(Socket::shutdown_both, ignored);
    // A large write may survive its socket.
    socket().cancel(ignored);
    socket().close(ignored);
}

void TcpConnection::finish() {
    close();
    if (finished_)
        finished_();
}

std::string connectFailure(const std::string& host, std::uint32_t port, const ErrorCode& error) {
    return "Failed to connect to '" + host + "' on port " + std::to_string(port) + ". O/S error " +
           describe(error);
}

std::string handshakeFailure(const ErrorCode& error) {
    return "SSL Handshake failed. Error " + describe(error);
}

} // namespace hessiancln
