// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "hessian/kinds.h"

namespace hessiancln {

/// The cipher of a key, 0 to 7. The agent also sends 2 to 4, which are AES too and have no name
/// here; they are never used for new keys.
enum class KeyEncryptionType : std::int32_t {
    NONE = 0,
    DES = 1,
    AES128 = 5,
    AES192 = 6,
    AES256 = 7,
};
constexpr auto declaredValues(KeyEncryptionType) {
    return hessianser::values({{0, 7}});
}

/// The cipher's display name: one of "NONE", "DES", "AES128", "AES192", "AES256".
std::string_view keyEncryptionName(KeyEncryptionType type);

/// The value to send for a cipher name; AES128 for a name that isn't one of the five.
KeyEncryptionType keyEncryptionFromName(std::string_view name);

} // namespace hessiancln
