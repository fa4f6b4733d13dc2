// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/memory_scan.h"

#include <cstddef>
#include <string_view>

#include "tests/support/system/process_memory.h"

namespace memory_scan {

namespace {

/// Whether the first bytes of `text` are at `offset`, `distance` bytes apart, with zeros in the
/// gaps of UTF-16.
bool standsAt(std::string_view bytes, std::size_t offset, std::string_view text,
              std::size_t distance) {
    const bool wide = distance > 1;
    for (const char c : text) {
        if (offset + (wide ? 2 : 1) > bytes.size() || bytes[offset] != c ||
            (wide && bytes[offset + 1] != '\0'))
            return false;
        offset += distance;
    }
    return true;
}

void look(std::string_view bytes, std::string_view text, const std::string& where,
          std::vector<std::string>& found) {
    for (std::size_t offset = bytes.find(text[0]); offset != std::string_view::npos;
         offset = bytes.find(text[0], offset + 1))
        for (const std::size_t distance : {1U, 2U, 4U, 8U, 12U, 16U, 20U, 24U, 32U})
            if (standsAt(bytes, offset, text, distance))
                found.push_back(
                    (distance == 1 ? "bytes" : "UTF-16 at distance " + std::to_string(distance)) +
                    (" in " + where));
}

} // namespace

bool isPossible() {
#ifdef TARN_SANITIZED
    return false;
#else
    return support::process_memory::isReadable();
#endif
}

std::vector<std::string> findings(long process, const std::string& secret) {
    const std::string backwards(secret.rbegin(), secret.rend());
    std::vector<std::string> found;
    const bool read = support::process_memory::visitWritable(
        process, [&](const std::string& where, const std::string& bytes) {
            look(bytes, secret, where, found);
            look(bytes, backwards, where + ", backwards", found);
        });
    return read ? found : std::vector<std::string>{"memory that can't be read"};
}

} // namespace memory_scan
