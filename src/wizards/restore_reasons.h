// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>

#include <QString>

/// The reason for a restore, which the agent records for its statistics.
namespace wizards {

enum class RestoreReasonCode : std::int32_t {
    AccidentalDeletion = 1,
    MaliciousDeletion = 2,
    DeviceLost = 3,
    HardwareMalfunction = 4,
    SoftwareMalfunction = 5,
    DataStolen = 6,
    NaturalDisaster = 8,
    PowerOutage = 9,
    PreviousGeneration = 11,
    Heading = 13, ///< heading of the reasons that follow, not a reason itself
};

/// A row of the list of reasons.
struct RestoreReason {
    const char* text; ///< in English; those under a heading are indented with spaces
    RestoreReasonCode code;

    /// In the language of the user interface.
    QString shownText() const;
};

inline constexpr int restoreReasonCount = 12;

/// In display order.
const std::array<RestoreReason, restoreReasonCount>& restoreReasons();

} // namespace wizards
