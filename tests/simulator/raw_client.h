// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A client that shares no code with the product or the simulator: bytes typed by hand, over its
/// own socket. Each wait has a limit and throws `std::runtime_error` when it is exceeded.
namespace raw {

/// A connection to 127.0.0.1.
class Connection {
public:
    Connection(std::uint16_t port, bool tls);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void send(std::string_view bytes);

    /// Exactly `count` bytes.
    std::string receive(std::size_t count);

    /// Everything until the other side closes.
    std::string receiveRest();

    /// True if for that time nothing arrives and nothing is closed.
    bool silentFor(int milliseconds);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

// The wire forms. Texts are ASCII.
std::string text(std::string_view value);
std::string int32(std::int32_t value);
std::string int64(std::int64_t value);
std::string boolean(bool value);
/// Of encoded values.
std::string list(std::initializer_list<std::string> values);
std::string member(std::string_view key, std::string_view value);
/// `type` without its package; the members are already encoded.
std::string record(std::string_view type, std::string_view members);
std::string remote(std::string_view type, std::string_view url);
std::string call(std::string_view method, std::string_view arguments = {});

/// "r", 1, 0, the value, "z".
std::string reply(std::string_view value = {});

std::string fault(std::string_view code, std::string_view message);

std::string requestFrame(std::uint32_t id, std::string_view url, std::string_view message);

/// A valid POST of the message, which tests may alter.
std::string post(std::uint16_t port, std::string_view target, std::string_view message);

/// Sends one POST on a new connection. Returns the status line, or the body of a 200.
std::string exchange(std::uint16_t port, bool tls, std::string_view request);

/// The message of a response frame, after checking its head and checksum.
std::string receiveResponse(Connection& connection, std::uint32_t id);

/// CRC-32, computed bit by bit.
std::uint32_t crc(std::string_view bytes);

/// The URL of the first reference in a reply.
std::string referenceIn(std::string_view reply);

/// The URLs of all references in a reply.
std::vector<std::string> referencesIn(std::string_view reply);

} // namespace raw
