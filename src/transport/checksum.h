// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

namespace hessiancln {

/// IEEE 802.3 CRC-32 of `size` bytes, continued from `checksum`, which is 0 for the first block.
std::uint32_t continueChecksum(std::uint32_t checksum, const void* bytes, std::size_t size);

} // namespace hessiancln
