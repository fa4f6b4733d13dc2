// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "hessian/reader.h"

#include <limits>

#include "hessian/utf8.h"

namespace hessianser {
namespace {

constexpr std::uint32_t chunkHead = 3;

enum class Count { Characters, Bytes };

/// One chunk of a string, a binary or a name, not yet copied out of the message.
struct Chunk {
    std::string_view data;
    bool last;
};

std::uint32_t lengthInBytes(const Cursor& in, std::uint32_t characters) {
    // The caller has checked that there are at least as many bytes as characters.
    if (isAscii({in.pos + chunkHead, characters}))
        return characters;
    std::uint32_t bytes = 0;
    for (std::uint32_t i = 0; i < characters; ++i) {
        if (in.remaining <= bytes + chunkHead)
            fail("Data stream truncated (block UTF-8 interpretation overflow)");
        bytes += static_cast<std::uint32_t>(
            utf8SequenceLength(static_cast<unsigned char>(in.pos[bytes + chunkHead])));
    }
    if (in.remaining < bytes + chunkHead)
        fail("Data stream truncated (block contents truncated - final char)");
    return bytes;
}

Chunk readChunk(Cursor& in, char moreTag, char lastTag, Count count) {
    if (in.remaining < chunkHead)
        fail("Data stream truncated (too short for block header)");
    const char tag = *in.pos;
    if (tag != lastTag && tag != moreTag)
        fail("Invalid data stream part - unexpected data block type");
    const std::uint32_t n = loadBigEndian<std::uint16_t>(in.pos + 1);
    if (in.remaining < n + chunkHead)
        fail("Data stream truncated (block contents truncated)");
    const std::uint32_t bytes = count == Count::Characters ? lengthInBytes(in, n) : n;
    const Chunk chunk{{in.pos + chunkHead, bytes}, tag == lastTag};
    in.skip(chunkHead + bytes);
    return chunk;
}

} // namespace

Cursor::Cursor(std::string_view message)
    : pos(message.data())
    , remaining(static_cast<std::uint32_t>(message.size())) {
    if (message.size() > std::numeric_limits<std::uint32_t>::max())
        fail("Message too large to be decoded");
}

void readString(Cursor& in, std::string& text) {
    Chunk chunk = readChunk(in, 's', 'S', Count::Characters);
    text.assign(chunk.data);
    while (!chunk.last) {
        chunk = readChunk(in, 's', 'S', Count::Characters);
        text.append(chunk.data);
    }
}

std::string readString(Cursor& in) {
    std::string text;
    readString(in, text);
    return text;
}

Binary readBinary(Cursor& in) {
    Binary data;
    for (bool last = false; !last;) {
        const Chunk chunk = readChunk(in, 'b', 'B', Count::Bytes);
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(chunk.data.data());
        data.insert(data.end(), bytes, bytes + chunk.data.size());
        last = chunk.last;
    }
    return data;
}

std::string readType(Cursor& in) {
    return std::string(readChunk(in, 't', 't', Count::Bytes).data);
}

Remote readRemote(Cursor& in) {
    if (in.remaining < 4)
        fail("Not enough space to decode a remote");
    if (*in.pos != 'r')
        fail("Not a remote object");
    in.skip(1);
    Remote remote;
    if (in.at('t'))
        remote.type = readType(in);
    readString(in, remote.url);
    return remote;
}

void readReplyStart(Cursor& in) {
    constexpr std::string_view start("r\x01\0", 3);
    if (in.remaining < start.size())
        fail("Not enough space to decode a reply");
    if (!in.startsWith(start))
        fail("Not a reply start");
    in.skip(start.size());
}

Fault readFault(Cursor& in) {
    Fault fault;
    if (in.remaining == 0)
        fail("Not enough space to decode a fault start");
    if (*in.pos != 'f')
        fail("Not a fault object");
    in.skip(1);
    while (!in.at('z')) {
        const std::string key = readString(in);
        if (key == "code")
            readString(in, fault.code);
        else if (key == "message")
            readString(in, fault.message);
        else
            break;
    }
    return fault;
}

void readEnd(Cursor& in) {
    if (in.remaining < 1)
        fail("Not enough space to read a reply end");
    if (*in.pos != 'z')
        fail("Not a remote call end");
    in.skip(1);
}

void readMapStart(Cursor& in, std::string_view expected) {
    if (in.remaining < expected.size() + 4)
        fail("Not enough space to decode a map start");
    if (in.pos[0] != 'M')
        fail("Not a map start");
    if (in.pos[1] != 't')
        fail("Map does not start with a type");
    if (loadBigEndian<std::uint16_t>(in.pos + 2) != expected.size())
        fail("Map type different than the expected type (length difference)");
    if (std::memcmp(in.pos + 4, expected.data(), expected.size()) != 0)
        fail("Map type different than the expected type (content difference)");
    in.skip(expected.size() + 4);
}

bool readMemberName(Cursor& in, std::string_view& name, std::string& scratch) {
    if (in.remaining == 0)
        fail("Not enough space to read a map end marker (or member name)");
    if (*in.pos == 'z') {
        in.skip(1);
        return false;
    }
    if (*in.pos == 'S') {
        name = readChunk(in, 's', 'S', Count::Characters).data;
        return true;
    }
    readString(in, scratch);
    name = scratch;
    return true;
}

bool readListStart(Cursor& in) {
    if (in.remaining < 2)
        fail("Not enough space to decode a list");
    if (*in.pos != 'V')
        fail("Not a list value");
    in.skip(1);
    if (*in.pos == 't') {
        readType(in);
        if (in.remaining == 0)
            fail("List stream truncated (not enough space for end marker after type).");
    }
    if (*in.pos == 'l') {
        if (in.remaining < 6)
            fail("Not enough space for list content after list length");
        in.skip(5);
    }
    if (*in.pos != 'z')
        return true;
    in.skip(1);
    return false;
}

bool readListContinues(Cursor& in) {
    if (in.remaining == 0)
        fail("List stream truncated (not enough space for end marker).");
    if (*in.pos != 'z')
        return true;
    in.skip(1);
    return false;
}

} // namespace hessianser
