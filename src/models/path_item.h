// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace models {

/// One line of a selection: a path, UTF-8, its parts joined by backslashes, that a backup set holds
/// with all below it, or that it leaves out.
struct PathItem {
    std::string path;
    bool isExclusion = false;

    bool operator==(const PathItem&) const = default;
};

} // namespace models
