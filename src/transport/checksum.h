// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

namespace hessiancln {

/// CRC-32 as in IEEE 802.3 over `size` bytes, continuing from `checksum`, which is 0 at the start.
std::uint32_t continueChecksum(std::uint32_t checksum, const void* bytes, std::size_t size);

} // namespace hessiancln
