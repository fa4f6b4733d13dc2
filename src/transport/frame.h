// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace hessiancln {

/// The frames of the raw stream, as bytes. Integers are big-endian; the checksum that ends a frame
/// covers everything between the magic and itself.
///
///     request   "@REQ"  id:4  length:4 url  length:8 message  checksum:4
///     response  "@RSP"  id:4  length:8 message  checksum:4

inline constexpr std::size_t responseHeaderSize = 16;
inline constexpr std::size_t checksumSize = 4;

using ResponseHeader = std::array<unsigned char, responseHeaderSize>;

/// A complete request frame.
std::string requestFrame(std::uint32_t id, const std::string& url, const std::string& message);

bool hasResponseMagic(const ResponseHeader& header);
std::uint32_t responseId(const ResponseHeader& header);
std::uint64_t responseLength(const ResponseHeader& header);

/// Whether a message may have this length: the codec counts its bytes in 32 bits.
bool isMessageLength(std::uint64_t length);

/// The checksum of the header's part. Continue it with the message.
std::uint32_t checksumOf(const ResponseHeader& header);

/// Reads a checksum from the four bytes at `bytes`.
std::uint32_t storedChecksum(const char* bytes);

/// Hex dump of an invalid header. A byte of 0x80 or above shows as "FF", or as "FFFFFF" plus its
/// own two digits if it is the last one.
std::string dump(const ResponseHeader& header);

} // namespace hessiancln
