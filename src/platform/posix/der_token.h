// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>

namespace platform {

/// The token at the start of `room`, which may be larger: logon tokens are one value of DER
/// (X.690), and that says how long it is. All of `room` where it isn't such a value.
std::span<std::uint8_t> derToken(std::span<std::uint8_t> room);

} // namespace platform
