// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "hessian/kinds.h"

namespace hessiancln {

/// The cipher that a key is for, 0 to 7. The agent also sends 2 to 4, which are AES as well and
/// have no name here; they are never chosen anew.
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

/// The name that people know the cipher by: one of "NONE", "DES", "AES128", "AES192", "AES256".
std::string_view keyEncryptionName(KeyEncryptionType type);

/// What is sent for a cipher of that name; AES128 for a name that isn't one of the five.
KeyEncryptionType keyEncryptionFromName(std::string_view name);

} // namespace hessiancln
