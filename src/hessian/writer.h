// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Writers for the primitive values of the wire, a dialect of Hessian 1.0: each one appends to
/// `out`; integers are big-endian; text is UTF-8. Failures throw `serialize_exception`.
namespace hessianser {

/// Bytes as opposed to text: the binary form on the wire.
using Binary = std::vector<std::uint8_t>;

/// The maximum number of characters or bytes in one chunk.
inline constexpr std::size_t maximumChunk = 0x7FFF;

void writeNull(std::string& out);
void writeBool(bool value, std::string& out);
void writeInt32(std::int32_t value, std::string& out);
void writeInt64(std::int64_t value, std::string& out);

/// Chunks with the tags s and S, counted in characters.
void writeString(std::string_view text, std::string& out);

/// Chunks with the tags b and B, counted in bytes.
void writeBinary(const Binary& data, std::string& out);

/// One chunk with the tag t, counted in characters.
void writeType(std::string_view name, std::string& out);

/// A reference to a remote object: its type name and its URL.
void writeRemote(std::string_view type, std::string_view url, std::string& out);

/// The head of a call; its arguments and `writeEnd` follow.
void writeCallStart(std::string_view method, std::string& out);

/// The end of a call, a reply, a map, a list or a fault.
void writeEnd(std::string& out);

/// Sizes in bytes, equal to what the writer of the same name appends.
inline constexpr std::uint32_t sizeOfNull = 1;
inline constexpr std::uint32_t sizeOfBool = 1;
inline constexpr std::uint32_t sizeOfInt32 = 5;
inline constexpr std::uint32_t sizeOfInt64 = 9;
inline constexpr std::uint32_t sizeOfEnd = 1;
std::uint32_t sizeOfString(std::string_view text);
std::uint32_t sizeOfBinary(const Binary& data);
std::uint32_t sizeOfCallStart(std::string_view method);
std::uint32_t sizeOfRemote(std::string_view type, std::string_view url);

} // namespace hessianser
