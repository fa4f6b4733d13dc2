// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "hessian/writer.h"

#include <algorithm>

#include "hessian/byte_order.h"
#include "hessian/serialize_exception.h"
#include "hessian/utf8.h"

namespace hessianser {
namespace {

/// A piece cut from the front of a text: its length in bytes and the count written before it.
struct Chunk {
    std::size_t bytes;
    std::uint16_t count;
};

Chunk cutByBytes(std::string_view rest) {
    const std::size_t bytes = std::min(rest.size(), maximumChunk);
    return {bytes, static_cast<std::uint16_t>(bytes)};
}

Chunk cutByCharacters(std::string_view rest) {
    if (const std::string_view head = rest.substr(0, maximumChunk); isAscii(head))
        return cutByBytes(head);
    std::size_t bytes = 0;
    std::uint16_t count = 0;
    while (count < maximumChunk && bytes < rest.size()) {
        bytes += utf8SequenceLength(static_cast<unsigned char>(rest[bytes]));
        if (bytes > rest.size())
            fail("Data stream truncated (last character overflows data buffer)");
        ++count;
    }
    return {bytes, count};
}

using Cut = Chunk (*)(std::string_view);

void writeChunks(std::string_view rest, char moreTag, char lastTag, Cut cut, std::string& out) {
    do {
        const Chunk chunk = cut(rest);
        const bool last = chunk.bytes == rest.size();
        if (!last && moreTag == lastTag)
            fail("Cannot serialize data: chunk too large for 16-bit length (and only 1 chunk "
                 "allowed)");
        char head[3] = {last ? lastTag : moreTag, 0, 0};
        storeBigEndian(chunk.count, head + 1);
        out.append(head, sizeof head);
        out.append(rest.substr(0, chunk.bytes));
        rest.remove_prefix(chunk.bytes);
    } while (!rest.empty());
}

std::uint32_t sizeOfChunks(std::string_view rest, Cut cut) {
    std::size_t size = 0;
    do {
        const Chunk chunk = cut(rest);
        size += 3 + chunk.bytes;
        rest.remove_prefix(chunk.bytes);
    } while (!rest.empty());
    return static_cast<std::uint32_t>(size);
}

std::string_view asText(const Binary& data) {
    return {reinterpret_cast<const char*>(data.data()), data.size()};
}

} // namespace

void writeNull(std::string& out) {
    out.push_back('N');
}

void writeBool(bool value, std::string& out) {
    out.push_back(value ? 'T' : 'F');
}

void writeInt32(std::int32_t value, std::string& out) {
    char bytes[sizeOfInt32] = {'I'};
    storeBigEndian(static_cast<std::uint32_t>(value), bytes + 1);
    out.append(bytes, sizeof bytes);
}

void writeInt64(std::int64_t value, std::string& out) {
    char bytes[sizeOfInt64] = {'L'};
    storeBigEndian(static_cast<std::uint64_t>(value), bytes + 1);
    out.append(bytes, sizeof bytes);
}

void writeString(std::string_view text, std::string& out) {
    writeChunks(text, 's', 'S', cutByCharacters, out);
}

void writeBinary(const Binary& data, std::string& out) {
    writeChunks(asText(data), 'b', 'B', cutByBytes, out);
}

void writeType(std::string_view name, std::string& out) {
    writeChunks(name, 't', 't', cutByCharacters, out);
}

void writeRemote(std::string_view type, std::string_view url, std::string& out) {
    out.push_back('r');
    writeType(type, out);
    writeString(url, out);
}

void writeCallStart(std::string_view method, std::string& out) {
    out.append("c\x01\0", 3);
    writeChunks(method, 'm', 'm', cutByBytes, out);
}

void writeEnd(std::string& out) {
    out.push_back('z');
}

std::uint32_t sizeOfString(std::string_view text) {
    // A text of so few bytes can't have more characters than fit in one chunk.
    if (text.size() <= maximumChunk)
        return static_cast<std::uint32_t>(3 + text.size());
    return sizeOfChunks(text, cutByCharacters);
}

std::uint32_t sizeOfBinary(const Binary& data) {
    return sizeOfChunks(asText(data), cutByBytes);
}

std::uint32_t sizeOfCallStart(std::string_view method) {
    return 3 + sizeOfChunks(method, cutByBytes);
}

std::uint32_t sizeOfRemote(std::string_view type, std::string_view url) {
    return 1 + sizeOfString(type) + sizeOfString(url);
}

} // namespace hessianser
