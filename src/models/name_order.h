// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// The order of names in trees: that of `QString::compare`, ignoring case.
namespace models {

struct RankedName {
    int rank = 0;          ///< 0 to 255; lower ranks come first, whatever the name
    std::string_view name; ///< UTF-8
};

/// The indices of `names` in display order. Names that are equal, or differ only in case, keep
/// their order.
std::vector<std::size_t> shownOrder(const std::vector<RankedName>& names);

/// Whether two UTF-8 names are equal for `QString::compare`, ignoring case.
bool sameName(std::string_view a, std::string_view b);

} // namespace models
