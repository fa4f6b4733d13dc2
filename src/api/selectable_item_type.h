// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "hessian/kinds.h"

namespace hessiancln {

/// Entries in the content tree of a computer or a backup set, 0 to 13.
enum class SelectableItemType : std::int32_t {
    Drive = 0,
    Folder = 1,
    OtherFolder = 2,
    File = 3,
    Database = 7,
};
constexpr auto declaredValues(SelectableItemType) {
    return hessianser::values({{0, 13}});
}

} // namespace hessiancln
