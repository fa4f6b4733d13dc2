// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>

namespace platform {

/// The token at the start of `room`, which may be larger: a logon token is one DER value (X.690)
/// that encodes its own length. Returns all of `room` if it doesn't start with such a value.
std::span<std::uint8_t> derToken(std::span<std::uint8_t> room);

} // namespace platform
