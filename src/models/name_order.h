// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// The order in which trees show names: that of `QString::compare` without regard to case.
namespace models {

struct RankedName {
    int rank = 0;          ///< 0 to 255; lower ones come first, whatever the name
    std::string_view name; ///< UTF-8
};

/// The places of `names` in the order in which they are shown. Names that differ in case only, or
/// not at all, stay in their order.
std::vector<std::size_t> shownOrder(const std::vector<RankedName>& names);

/// Whether two names, UTF-8, are the same without regard to case, as `QString::compare` sees it.
bool sameName(std::string_view a, std::string_view b);

} // namespace models
