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

/// The token in `frame`, a view into it. Bytes behind the token are left out. Never reads outside
/// `frame`: a length that promises too much gives the bytes that are there, and a frame too short
/// for a length gives an empty token.
std::span<const std::uint8_t> framedToken(std::span<const std::uint8_t> frame);

} // namespace session
