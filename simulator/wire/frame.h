// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

/// The frames of the long-lived stream on the agent's side: it receives requests and sends
/// responses. Integers are big-endian; the checksum is CRC-32 and covers everything after the
/// magic.
namespace simulator::wire {

inline constexpr std::string_view requestMagic = "@REQ";
inline constexpr std::string_view responseMagic = "@RSP";

/// The longest URL and the longest call that a client needs to send.
inline constexpr std::uint32_t maximumUrl = 4096;
inline constexpr std::uint64_t maximumCall = 64u << 20;

/// Bytes that a correct client never sends. The stream can't be parsed any further.
class BadFrame : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

/// At least `size` bytes are needed to parse the rest of the frame.
struct Incomplete {
    std::size_t size;
};

/// A complete request. The texts point into the parsed bytes.
struct RequestFrame {
    std::uint32_t id;
    std::string_view url;
    std::string_view message;
    std::size_t size;
};

/// Parses the start of `bytes`. Throws `BadFrame`.
std::variant<Incomplete, RequestFrame> parseRequest(std::string_view bytes);

std::string responseFrame(std::uint32_t id, std::string_view message);
/// What a frame begins with.
std::string responseHead(std::uint32_t id, std::uint64_t messageSize);

std::uint32_t checksum(std::string_view bytes);

} // namespace simulator::wire
