// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/checksum.h"

#include <libdeflate.h>

namespace hessiancln {

std::uint32_t continueChecksum(std::uint32_t checksum, const void* bytes, std::size_t size) {
    return libdeflate_crc32(checksum, bytes, size);
}

} // namespace hessiancln
