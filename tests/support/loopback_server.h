// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <ostream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/support/system/sockets.h"

struct ssl_ctx_st;
struct ssl_st;

namespace support {

/// A request frame as read by the server, with its checksum verified.
struct RequestFrame {
    std::uint32_t id = 0;
    std::string url;
    std::string message;
};

/// The bytes of a response frame, with a checksum computed independently by the server.
std::string responseFrame(std::uint32_t id, std::string_view message);

/// The server's end of one connection: the verbs of a script. Every verb throws if the other side
/// doesn't play along within 20 seconds, and that fails the test.
class Peer {
public:
    Peer(sockets::Socket socket, ssl_ctx_st* context);
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer();

    /// Does the TLS handshake; does nothing on a plain connection. First verb of most scripts.
    Peer& open();

    /// Reads exactly these bytes, or throws with both in the message.
    Peer& expect(std::string_view bytes);
    std::string receive(std::size_t size);
    std::string receiveUntil(std::string_view end);
    RequestFrame receiveFrame();

    /// Reads the other side's end of stream: throws if bytes arrive instead.
    Peer& expectClose();
    /// Reads and discards everything before the end of stream.
    Peer& receiveUntilClose();

    Peer& send(std::string_view bytes);
    /// One write, or one TLS record, per byte.
    Peer& sendByteByByte(std::string_view bytes);

    /// Closes without a TLS close_notify.
    void close();
    /// Sends a TLS close_notify first.
    void closePolitely();
    /// Closes so that the other side gets a reset.
    void reset();

    /// Makes a verb that blocks on another thread throw.
    void interrupt();

private:
    std::size_t receiveSome(char* buffer, std::size_t size);

    sockets::Socket socket_;
    ssl_st* tls_ = nullptr;
    ssl_ctx_st* context_;
};

/// A listener on loopback that misbehaves on command: each connection plays the next script, and
/// the last one is repeated. A script that throws fails the running test when the server ends.
class LoopbackServer {
public:
    enum class Mode { plain, tls };
    using Script = std::function<void(Peer&)>;

    /// With a `port` of 0 the system picks one.
    LoopbackServer(Mode mode, std::vector<Script> scripts, std::uint16_t port = 0);
    LoopbackServer(Mode mode, Script script, std::uint16_t port = 0)
        : LoopbackServer(mode, std::vector<Script>{std::move(script)}, port) {}
    ~LoopbackServer();

    std::uint16_t port() const { return port_; }
    /// As in "https://127.0.0.1:40123/api".
    std::string url(std::string_view path = "/api", std::string_view host = "127.0.0.1") const;

    /// The number of connections so far.
    std::size_t connections();

    /// Waits until `count` scripts have ended.
    bool waitForEnded(std::size_t count);

    /// From now on a script may throw without failing the test.
    void tolerateFailures();

    /// Ends every script that is still playing without failing the test.
    void stop();

private:
    struct Connection {
        std::unique_ptr<Peer> peer;
        std::thread thread;
    };

    void acceptAll();
    void play(Peer& peer, const Script& script);

    Mode mode_;
    std::vector<Script> scripts_;
    ssl_ctx_st* context_ = nullptr;
    sockets::Socket listener_ = -1;
    std::uint16_t port_ = 0;
    std::thread acceptor_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Connection> connections_;
    std::size_t ended_ = 0;
    bool tolerant_ = false;
    bool stopping_ = false;
};

/// For the names of parameterised tests.
void PrintTo(LoopbackServer::Mode mode, std::ostream* out);

/// A port of loopback without a listener.
std::uint16_t closedPort();

} // namespace support
