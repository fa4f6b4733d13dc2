// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <QDateTime>

namespace wizards {

/// The contents of the filter's fields. If a box isn't checked, its fields are ignored.
struct DeleteFilterFields {
    bool on = false; ///< the whole group
    bool useFrom = false;
    QDateTime from{};
    QDateTime earliest{}; ///< minimum of `from`
    bool useTo = false;
    QDateTime to{};
    QDateTime latest{}; ///< maximum of `to`
    bool useRemoved = false;
    QDateTime removed{};
    bool useKeep = false;
    int keep = 0;
};

/// Likewise, in the agent's format. Times are seconds since 1970 UTC; 0 means no limit.
struct DeleteFilter {
    std::int32_t from = 0;
    std::int32_t to = 0;
    std::int32_t removedSince = 0;
    std::int32_t keepLast = 0;
};

DeleteFilter deleteFilter(const DeleteFilterFields& fields);

/// Whether the filter excludes anything. A time at its limit doesn't.
bool isInForce(const DeleteFilterFields& fields);

} // namespace wizards
