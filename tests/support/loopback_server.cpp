// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/loopback_server.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include "tests/support/bytes.h"

// Uses bare sockets and OpenSSL, so that it shares no code and no habits with the transport.
namespace support {
namespace {

constexpr std::chrono::seconds patience(20);

[[noreturn]] void fail(const std::string& what) {
    throw std::runtime_error("peer: " + what);
}

constexpr std::array<std::uint32_t, 256> crcTable = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        table[byte] = crc;
    }
    return table;
}();

std::uint32_t crc32(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char c : bytes)
        crc = (crc >> 8) ^ crcTable[(crc ^ static_cast<unsigned char>(c)) & 0xFF];
    return ~crc;
}

std::string bigEndian(std::uint64_t number, int size) {
    std::string bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift);
    return bytes;
}

std::uint64_t number(std::string_view bytes) {
    std::uint64_t value = 0;
    for (const char c : bytes)
        value = value << 8 | static_cast<unsigned char>(c);
    return value;
}

/// One key and certificate for all servers of the program.
SSL_CTX* makeContext() {
    SSL_CTX* context = SSL_CTX_new(TLS_server_method());
    EVP_PKEY* key = EVP_EC_gen("P-256");
    X509* certificate = X509_new();
    X509_set_version(certificate, 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate), -3600);
    X509_gmtime_adj(X509_getm_notAfter(certificate), 24 * 3600);
    X509_set_pubkey(certificate, key);
    X509_NAME* name = X509_get_subject_name(certificate);
    const unsigned char host[] = "127.0.0.1";
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, host, -1, -1, 0);
    X509_set_issuer_name(certificate, name);
    X509_sign(certificate, key, EVP_sha256());
    SSL_CTX_use_certificate(context, certificate);
    SSL_CTX_use_PrivateKey(context, key);
    X509_free(certificate);
    EVP_PKEY_free(key);
    return context;
}

} // namespace

std::string responseFrame(std::uint32_t id, std::string_view message) {
    std::string covered = bigEndian(id, 4) + bigEndian(message.size(), 8);
    covered += message;
    return "@RSP" + covered + bigEndian(crc32(covered), 4);
}

Peer::Peer(sockets::Socket socket, ssl_ctx_st* context)
    : socket_(socket)
    , context_(context) {
    sockets::limitReads(socket_, patience);
    sockets::limitWrites(socket_, patience);
    sockets::sendAtOnce(socket_);
}

Peer::~Peer() {
    SSL_free(tls_);
    sockets::close(socket_);
}

Peer& Peer::open() {
    if (context_) {
        tls_ = SSL_new(context_);
        SSL_set_fd(tls_, static_cast<int>(socket_));
        if (SSL_accept(tls_) != 1)
            fail("the handshake failed");
    }
    return *this;
}

std::size_t Peer::receiveSome(char* buffer, std::size_t size) {
    if (!tls_) {
        const std::ptrdiff_t got = sockets::receive(socket_, buffer, size);
        if (got < 0 && !sockets::wasReset())
            fail("nothing received: " + sockets::lastFailure());
        return static_cast<std::size_t>(std::max<std::ptrdiff_t>(got, 0));
    }
    std::size_t got = 0;
    if (SSL_read_ex(tls_, buffer, size, &got) == 1)
        return got;
    // This client never sends a close_notify, so the end of the socket is the end of the stream.
    const int cause = SSL_get_error(tls_, 0);
    const bool end = cause == SSL_ERROR_ZERO_RETURN ||
                     (cause == SSL_ERROR_SYSCALL && sockets::wasReset()) ||
                     ERR_GET_REASON(ERR_peek_error()) == SSL_R_UNEXPECTED_EOF_WHILE_READING;
    ERR_clear_error();
    if (!end)
        fail("nothing received on TLS");
    return 0;
}

std::string Peer::receive(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t held = 0; held < size;) {
        const std::size_t got = receiveSome(bytes.data() + held, size - held);
        if (got == 0)
            fail("closed after " + std::to_string(held) + " of " + std::to_string(size) + " bytes");
        held += got;
    }
    return bytes;
}

std::string Peer::receiveUntil(std::string_view end) {
    std::string bytes;
    while (!bytes.ends_with(end))
        bytes += receive(1);
    return bytes;
}

Peer& Peer::expect(std::string_view bytes) {
    const std::string got = receive(bytes.size());
    if (got != bytes)
        fail("expected " + printable(bytes) + "\n     but got " + printable(got));
    return *this;
}

RequestFrame Peer::receiveFrame() {
    const std::string start = receive(12);
    if (!start.starts_with("@REQ"))
        fail("not a request frame: " + printable(start));
    RequestFrame frame;
    frame.id = static_cast<std::uint32_t>(number(start.substr(4, 4)));
    frame.url = receive(number(start.substr(8)));
    const std::string length = receive(8);
    frame.message = receive(number(length));
    const std::string covered = start.substr(4) + frame.url + length + frame.message;
    if (number(receive(4)) != crc32(covered))
        fail("the checksum of a request is wrong");
    return frame;
}

Peer& Peer::expectClose() {
    char byte = 0;
    if (receiveSome(&byte, 1) != 0)
        fail("bytes where the end was expected");
    return *this;
}

Peer& Peer::receiveUntilClose() {
    char forgotten[4096];
    while (receiveSome(forgotten, sizeof forgotten) != 0) {
    }
    return *this;
}

Peer& Peer::send(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t sent = 0;
        if (tls_) {
            if (SSL_write_ex(tls_, bytes.data(), bytes.size(), &sent) != 1)
                fail("nothing sent on TLS");
        } else {
            const std::ptrdiff_t got = sockets::send(socket_, bytes.data(), bytes.size());
            if (got < 0)
                fail("nothing sent: " + sockets::lastFailure());
            sent = static_cast<std::size_t>(got);
        }
        bytes.remove_prefix(sent);
    }
    return *this;
}

Peer& Peer::sendByteByByte(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i)
        send(bytes.substr(i, 1));
    return *this;
}

void Peer::close() {
    sockets::shutdown(socket_);
}

void Peer::closePolitely() {
    if (tls_)
        SSL_shutdown(tls_);
    close();
}

void Peer::reset() {
    sockets::reset(socket_);
}

void Peer::interrupt() {
    sockets::shutdown(socket_);
}

LoopbackServer::LoopbackServer(Mode mode, std::vector<Script> scripts, std::uint16_t port)
    : mode_(mode)
    , scripts_(std::move(scripts))
    , port_(port) {
    static SSL_CTX* const context = makeContext();
    context_ = context;
    listener_ = sockets::listenOnLoopback(port_);
    acceptor_ = std::thread([this] { acceptAll(); });
}

LoopbackServer::~LoopbackServer() {
    stop();
}

std::string LoopbackServer::url(std::string_view path, std::string_view host) const {
    std::string url = mode_ == Mode::tls ? "https://" : "http://";
    return (((url += host) += ":") += std::to_string(port_)) += path;
}

std::size_t LoopbackServer::connections() {
    const std::lock_guard lock(mutex_);
    return connections_.size();
}

bool LoopbackServer::waitForEnded(std::size_t count) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, patience, [&] { return ended_ >= count; });
}

void LoopbackServer::tolerateFailures() {
    const std::lock_guard lock(mutex_);
    tolerant_ = true;
}

void LoopbackServer::stop() {
    {
        const std::lock_guard lock(mutex_);
        if (std::exchange(stopping_, true))
            return;
        for (const Connection& connection : connections_)
            connection.peer->interrupt();
    }
    // A connection wakes the acceptor on every system; it isn't served any more.
    sockets::close(sockets::connectToLoopback(port_));
    acceptor_.join();
    for (Connection& connection : connections_)
        connection.thread.join();
    connections_.clear();
    sockets::close(listener_);
}

void LoopbackServer::acceptAll() {
    for (;;) {
        const sockets::Socket socket = sockets::accept(listener_);
        const std::lock_guard lock(mutex_);
        if (socket < 0 || stopping_) {
            if (socket >= 0)
                sockets::close(socket);
            return;
        }
        const Script& script = scripts_[std::min(connections_.size(), scripts_.size() - 1)];
        auto peer = std::make_unique<Peer>(socket, mode_ == Mode::tls ? context_ : nullptr);
        Peer& used = *peer;
        connections_.push_back({std::move(peer), {}});
        connections_.back().thread = std::thread([this, &used, &script] { play(used, script); });
    }
}

void LoopbackServer::play(Peer& peer, const Script& script) {
    // A write to a closed client must not end the program. Blocked only here: in the client's own
    // threads it must not happen.
    sockets::blockBrokenPipe();

    std::string failure;
    try {
        script(peer);
    } catch (const std::exception& raised) {
        failure = raised.what();
    }
    peer.close();
    const std::lock_guard lock(mutex_);
    if (!failure.empty() && !stopping_ && !tolerant_)
        ADD_FAILURE() << failure;
    ++ended_;
    changed_.notify_all();
}

void PrintTo(LoopbackServer::Mode mode, std::ostream* out) {
    *out << (mode == LoopbackServer::Mode::tls ? "TLS" : "plain");
}

std::uint16_t closedPort() {
    std::uint16_t port = 0;
    sockets::close(sockets::listenOnLoopback(port));
    return port;
}

} // namespace support
