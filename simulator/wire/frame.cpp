// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/wire/frame.h"

#include <libdeflate.h>

namespace simulator::wire {
namespace {

constexpr std::size_t headSize = 12;
constexpr std::size_t lengthSize = 8;
constexpr std::size_t checksumSize = 4;

std::uint64_t number(std::string_view bytes, std::size_t from, std::size_t count) {
    std::uint64_t value = 0;
    for (const char byte : bytes.substr(from, count))
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

void append(std::string& out, std::uint64_t value, int bytes) {
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        out.push_back(static_cast<char>(value >> shift & 0xFF));
}

void checkMagic(std::string_view bytes) {
    const std::string_view begun = bytes.substr(0, requestMagic.size());
    if (begun != requestMagic.substr(0, begun.size()))
        throw BadFrame("a frame doesn't begin with @REQ");
}

} // namespace

std::variant<Incomplete, RequestFrame> parseRequest(std::string_view bytes) {
    checkMagic(bytes);
    if (bytes.size() < headSize)
        return Incomplete{headSize};
    const auto urlSize = static_cast<std::size_t>(number(bytes, 8, 4));
    if (urlSize > maximumUrl)
        throw BadFrame("a frame announces a URL of " + std::to_string(urlSize) + " bytes");
    const std::size_t messageAt = headSize + urlSize + lengthSize;
    if (bytes.size() < messageAt)
        return Incomplete{messageAt};
    const std::uint64_t messageSize = number(bytes, headSize + urlSize, lengthSize);
    if (messageSize > maximumCall)
        throw BadFrame("a frame announces a call of " + std::to_string(messageSize) + " bytes");
    const std::size_t checksumAt = messageAt + static_cast<std::size_t>(messageSize);
    if (bytes.size() < checksumAt + checksumSize)
        return Incomplete{checksumAt + checksumSize};
    const std::uint64_t stored = number(bytes, checksumAt, checksumSize);
    const std::size_t from = requestMagic.size();
    if (checksum(bytes.substr(from, checksumAt - from)) != stored)
        throw BadFrame("a frame's checksum is wrong");
    return RequestFrame{
        static_cast<std::uint32_t>(number(bytes, 4, 4)), bytes.substr(headSize, urlSize),
        bytes.substr(messageAt, static_cast<std::size_t>(messageSize)), checksumAt + checksumSize};
}

std::string responseFrame(std::uint32_t id, std::string_view message) {
    std::string frame = responseHead(id, message.size());
    frame.reserve(frame.size() + message.size() + 4);
    frame += message;
    append(frame, checksum(std::string_view(frame).substr(responseMagic.size())), 4);
    return frame;
}

std::string responseHead(std::uint32_t id, std::uint64_t messageSize) {
    std::string head(responseMagic);
    append(head, id, 4);
    append(head, messageSize, 8);
    return head;
}

std::uint32_t checksum(std::string_view bytes) {
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

} // namespace simulator::wire
