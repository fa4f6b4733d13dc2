// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hessian/byte_order.h"
#include "hessian/serialize_exception.h"
#include "hessian/writer.h"

/// Readers for the primitive values of the wire. Each one consumes the value at the cursor and
/// never looks beyond `remaining`. Failures throw `serialize_exception`; anything read before a
/// failure is unusable.
namespace hessianser {

/// The unread rest of a message. It doesn't own the bytes.
struct Cursor {
    const char* pos = nullptr;
    std::uint32_t remaining = 0;

    /// Throws `serialize_exception` if the length of the message doesn't fit in 32 bits.
    explicit Cursor(std::string_view message);

    /// Whether the next byte exists and is `tag`.
    bool at(char tag) const { return remaining != 0 && *pos == tag; }

    /// Whether the next bytes exist and are `bytes`.
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

/// Text in UTF-8. The first form reads into `text` and reuses its capacity.
void readString(Cursor& in, std::string& text);
std::string readString(Cursor& in);

Binary readBinary(Cursor& in);

/// A type name: one chunk, counted in bytes.
std::string readType(Cursor& in);

/// A reference to a remote object. `type` is empty if the reference names no type.
struct Remote {
    std::string type;
    std::string url;
};
Remote readRemote(Cursor& in);

void readReplyStart(Cursor& in);
inline bool isFault(const Cursor& in) {
    return in.at('f');
}

/// Contents of a fault. Texts missing from the fault are placeholders.
struct Fault {
    std::string code = "<Code could not be parsed>";
    std::string message = "<Message could not be parsed>";
};

/// Reads up to the code and the message; other entries of the fault end the parse, so the rest of
/// the message is unusable afterwards.
Fault readFault(Cursor& in);

void readEnd(Cursor& in);

/// The head of a record of the wire type `expected`.
void readMapStart(Cursor& in, std::string_view expected);

/// The next key of a record. `name` points into the message, or into `scratch` if the key is split
/// into chunks. Returns false, with the end consumed, if there are no more members.
bool readMemberName(Cursor& in, std::string_view& name, std::string& scratch);

/// The head of a list, with its optional type and length. Returns false, with the end consumed, if
/// the list is empty.
bool readListStart(Cursor& in);

/// Call after each element: true if another one follows, false with the end consumed.
bool readListContinues(Cursor& in);

} // namespace hessianser
