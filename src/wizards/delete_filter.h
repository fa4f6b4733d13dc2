// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <QDateTime>

namespace wizards {

/// What the fields of the filter say. Of those whose box isn't checked only the box counts.
struct DeleteFilterFields {
    bool on = false; ///< the whole group
    bool useFrom = false;
    QDateTime from{};
    QDateTime earliest{}; ///< that `from` can say
    bool useTo = false;
    QDateTime to{};
    QDateTime latest{}; ///< that `to` can say
    bool useRemoved = false;
    QDateTime removed{};
    bool useKeep = false;
    int keep = 0;
};

/// The same for the agent. Times are seconds since 1970 UTC; 0 means no limit.
struct DeleteFilter {
    std::int32_t from = 0;
    std::int32_t to = 0;
    std::int32_t removedSince = 0;
    std::int32_t keepLast = 0;
};

DeleteFilter deleteFilter(const DeleteFilterFields& fields);

/// Whether the filter leaves anything out. A time at its limit doesn't.
bool isInForce(const DeleteFilterFields& fields);

} // namespace wizards
