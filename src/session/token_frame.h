// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>

#include "hessian/writer.h"

/// The frame of a logon token inside a binary value: its length in four little-endian bytes, then
/// the token.
namespace session {

/// `token` is at most 2^32 - 1 bytes long.
hessianser::Binary frameToken(std::span<const std::uint8_t> token);

/// The token in `frame`, as a view into it. Bytes after the token are ignored. Never reads outside
/// `frame`: if the length is too large, returns the existing bytes; if the frame is too short for a
/// length, returns an empty token.
std::span<const std::uint8_t> framedToken(std::span<const std::uint8_t> frame);

} // namespace session
