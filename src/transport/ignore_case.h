// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace hessiancln {

/// ASCII case-insensitive comparison, in every locale. Negative, zero or positive.
int compareIgnoringCase(std::string_view left, std::string_view right);

} // namespace hessiancln
