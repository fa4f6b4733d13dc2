// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/simulator/raw_client.h"

#include <stdexcept>

#include <openssl/err.h>
#include <openssl/ssl.h>

#include "tests/support/system/sockets.h"

namespace raw {
namespace {

namespace sockets = support::sockets;
using namespace std::chrono_literals;

constexpr auto limit = 10s;

void need(bool worked, const char* what) {
    if (!worked)
        throw std::runtime_error(what);
}

std::string bigEndian(std::uint64_t value, int bytes) {
    std::string out;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        out += static_cast<char>(value >> shift & 0xFF);
    return out;
}

} // namespace

struct Connection::Parts {
    sockets::Socket socket = -1;
    SSL_CTX* context = nullptr;
    SSL* ssl = nullptr;

    ~Parts() {
        SSL_free(ssl);
        SSL_CTX_free(context);
        if (socket >= 0)
            sockets::close(socket);
    }

    /// 0 if the other side has closed.
    std::size_t read(char* into, std::size_t count) {
        if (!ssl) {
            const std::ptrdiff_t got = sockets::receive(socket, into, count);
            need(got >= 0 || sockets::wasReset(), "nothing came in time");
            return got > 0 ? static_cast<std::size_t>(got) : 0;
        }
        ERR_clear_error();
        const int got = SSL_read(ssl, into, static_cast<int>(count));
        if (got > 0)
            return static_cast<std::size_t>(got);
        need(SSL_get_error(ssl, got) != SSL_ERROR_WANT_READ, "nothing came in time");
        return 0;
    }
};

Connection::Connection(std::uint16_t port, bool tls)
    : parts_(std::make_unique<Parts>()) {
    parts_->socket = sockets::connectToLoopback(port);
    need(parts_->socket >= 0, "no connection");
    sockets::limitReads(parts_->socket, limit);
    if (!tls)
        return;
    parts_->context = SSL_CTX_new(TLS_client_method());
    parts_->ssl = SSL_new(parts_->context);
    SSL_set_fd(parts_->ssl, static_cast<int>(parts_->socket));
    need(SSL_connect(parts_->ssl) == 1, "no TLS");
}

Connection::~Connection() = default;

void Connection::send(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto sent = parts_->ssl
                              ? SSL_write(parts_->ssl, bytes.data(), static_cast<int>(bytes.size()))
                              : sockets::send(parts_->socket, bytes.data(), bytes.size());
        need(sent > 0, "the bytes could not be sent");
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

std::string Connection::receive(std::size_t count) {
    std::string bytes(count, '\0');
    for (std::size_t have = 0; have < count;) {
        const std::size_t got = parts_->read(bytes.data() + have, count - have);
        need(got != 0, "the connection was closed");
        have += got;
    }
    return bytes;
}

std::string Connection::receiveRest() {
    std::string bytes;
    char part[65536];
    while (const std::size_t got = parts_->read(part, sizeof part))
        bytes.append(part, got);
    return bytes;
}

bool Connection::silentFor(int milliseconds) {
    // TLS may receive protocol messages, so poll alone can't tell.
    sockets::limitReads(parts_->socket, std::chrono::milliseconds(milliseconds));
    char byte = 0;
    const auto got =
        parts_->ssl ? SSL_read(parts_->ssl, &byte, 1) : sockets::receive(parts_->socket, &byte, 1);
    const bool timedOut = got < 0 && sockets::wasTimeout();
    sockets::limitReads(parts_->socket, limit);
    return timedOut;
}

std::string text(std::string_view value) {
    return "S" + bigEndian(value.size(), 2) + std::string(value);
}

std::string int32(std::int32_t value) {
    return "I" + bigEndian(static_cast<std::uint32_t>(value), 4);
}

std::string int64(std::int64_t value) {
    return "L" + bigEndian(static_cast<std::uint64_t>(value), 8);
}

std::string boolean(bool value) {
    return value ? "T" : "F";
}

std::string list(std::initializer_list<std::string> values) {
    std::string out = "V";
    for (const std::string& value : values)
        out += value;
    return out + "z";
}

std::string member(std::string_view key, std::string_view value) {
    return text(key) + std::string(value);
}

std::string record(std::string_view type, std::string_view members) {
    const std::string name = "com.norvel.api." + std::string(type);
    return "Mt" + bigEndian(name.size(), 2) + name + std::string(members) + "z";
}

std::string remote(std::string_view type, std::string_view url) {
    return "rt" + bigEndian(type.size(), 2) + std::string(type) + text(url);
}

std::string call(std::string_view method, std::string_view arguments) {
    return std::string("c\x01\0m", 4) + bigEndian(method.size(), 2) + std::string(method) +
           std::string(arguments) + "z";
}

std::string reply(std::string_view value) {
    return std::string("r\x01\0", 3) + std::string(value) + "z";
}

std::string fault(std::string_view code, std::string_view message) {
    return "f" + text("code") + text(code) + text("message") + text(message) + "z";
}

std::string requestFrame(std::uint32_t id, std::string_view url, std::string_view message) {
    const std::string covered = bigEndian(id, 4) + bigEndian(url.size(), 4) + std::string(url) +
                                bigEndian(message.size(), 8) + std::string(message);
    return "@REQ" + covered + bigEndian(crc(covered), 4);
}

std::string post(std::uint16_t port, std::string_view target, std::string_view message) {
    return "POST " + std::string(target) + " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(port) +
           "\r\nUser-Agent: NorvelHessianCln/1.0\r\nConnection: close\r\nContent-Length: " +
           std::to_string(message.size()) + "\r\n\r\n" + std::string(message);
}

std::string exchange(std::uint16_t port, bool tls, std::string_view request) {
    Connection connection(port, tls);
    connection.send(request);
    const std::string response = connection.receiveRest();
    const std::string status = response.substr(0, response.find("\r\n"));
    const std::size_t body = response.find("\r\n\r\n");
    need(body != std::string::npos, "there is no whole response");
    return status == "HTTP/1.1 200 OK" ? response.substr(body + 4) : status;
}

std::string receiveResponse(Connection& connection, std::uint32_t id) {
    const std::string head = connection.receive(16);
    need(head.substr(0, 8) == "@RSP" + bigEndian(id, 4), "not the head of this response");
    std::size_t size = 0;
    for (const char byte : head.substr(8))
        size = size << 8 | static_cast<unsigned char>(byte);
    const std::string message = connection.receive(size);
    need(connection.receive(4) == bigEndian(crc(head.substr(4) + message), 4), "wrong checksum");
    return message;
}

std::uint32_t crc(std::string_view bytes) {
    std::uint32_t value = 0xFFFFFFFF;
    for (const char byte : bytes) {
        value ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            value = value >> 1 ^ (value & 1 ? 0xEDB88320u : 0u);
    }
    return ~value;
}

std::string referenceIn(std::string_view reply) {
    const auto references = referencesIn(reply);
    need(!references.empty(), "there is no reference");
    return references.front();
}

std::vector<std::string> referencesIn(std::string_view reply) {
    std::vector<std::string> urls;
    for (std::size_t at = reply.find("http"); at < reply.size(); at = reply.find("http", at)) {
        need(at >= 2, "a reference has no length");
        const auto byte = [&](std::size_t back) {
            return static_cast<std::size_t>(static_cast<unsigned char>(reply[at - back]));
        };
        urls.emplace_back(reply.substr(at, byte(2) << 8 | byte(1)));
        at += urls.back().size();
    }
    return urls;
}

} // namespace raw
