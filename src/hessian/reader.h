// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hessian/byte_order.h"
#include "hessian/serialize_exception.h"
#include "hessian/writer.h"

/// The primitive values of the wire, read. Each reader takes what stands at the cursor and moves
/// it on; nothing behind `remaining` is ever looked at. Failures raise `serialize_exception`, and
/// what was read so far is of no use then.
namespace hessianser {

/// The unread rest of a message. It doesn't own the bytes.
struct Cursor {
    const char* pos = nullptr;
    std::uint32_t remaining = 0;

    /// Raises `serialize_exception` if the message is longer than 32 bits can count.
    explicit Cursor(std::string_view message);

    /// The next byte is there and is `tag`.
    bool at(char tag) const { return remaining != 0 && *pos == tag; }

    /// The next bytes are there and are `bytes`.
    bool startsWith(std::string_view bytes) const {
        return remaining >= bytes.size() && std::string_view(pos, bytes.size()) == bytes;
    }

    void skip(std::size_t count) {
        pos += count;
        remaining -= static_cast<std::uint32_t>(count);
    }
};

inline void readNull(Cursor& in) {
    if (in.remaining < 1)
        fail("Not enough space to decode a NULL");
    if (*in.pos != 'N')
        fail("Not a NULL value");
    in.skip(1);
}

inline bool readBool(Cursor& in) {
    if (in.remaining < 1)
        fail("Not enough space to decode a bool");
    if (*in.pos != 'T' && *in.pos != 'F')
        fail("Not a bool value");
    const bool value = *in.pos == 'T';
    in.skip(1);
    return value;
}

inline std::int32_t readInt32(Cursor& in) {
    if (in.remaining < sizeOfInt32)
        fail("Not enough space to decode an int32");
    if (*in.pos != 'I')
        fail("Not an int32 value");
    const auto value = loadBigEndian<std::uint32_t>(in.pos + 1);
    in.skip(sizeOfInt32);
    return static_cast<std::int32_t>(value);
}

inline std::int64_t readInt64(Cursor& in) {
    if (in.remaining < sizeOfInt64)
        fail("Not enough space to decode an int64");
    if (*in.pos != 'L')
        fail("Not an int64 value");
    const auto value = loadBigEndian<std::uint64_t>(in.pos + 1);
    in.skip(sizeOfInt64);
    return static_cast<std::int64_t>(value);
}

/// Text, in UTF-8. The first form reads into `text` and spares an allocation where it has room.
void readString(Cursor& in, std::string& text);
std::string readString(Cursor& in);

Binary readBinary(Cursor& in);

/// A type name: one chunk, counted in bytes.
std::string readType(Cursor& in);

/// A reference to a remote object. `type` is empty where the reference names none.
struct Remote {
    std::string type;
    std::string url;
};
Remote readRemote(Cursor& in);

void readReplyStart(Cursor& in);
inline bool isFault(const Cursor& in) {
    return in.at('f');
}

/// What a fault says. Each text is a placeholder where the fault doesn't tell it.
struct Fault {
    std::string code = "<Code could not be parsed>";
    std::string message = "<Message could not be parsed>";
};

/// Reads as far as code and message go; a fault's other entries end the parse, so the rest of the
/// message is of no use afterwards.
Fault readFault(Cursor& in);

void readEnd(Cursor& in);

/// The head of a record of the wire type `expected`.
void readMapStart(Cursor& in, std::string_view expected);

/// The next key of a record. `name` points into the message, or into `scratch` where the key
/// stands there in pieces. False, with the end consumed, if there is no further member.
bool readMemberName(Cursor& in, std::string_view& name, std::string& scratch);

/// The head of a list, with the type and the length that may stand there. False, with the end
/// consumed, if the list is empty.
bool readListStart(Cursor& in);

/// To be asked behind each element: true if a further one follows, false with the end consumed.
bool readListContinues(Cursor& in);

} // namespace hessianser
