// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>

#include <QString>

/// Why somebody restores: what the agent keeps for its statistics.
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
    Heading = 13, ///< of the reasons that follow; none by itself
};

/// A row of the list of reasons.
struct RestoreReason {
    const char* text; ///< in English; those under a heading are indented by blanks
    RestoreReasonCode code;

    /// In the language of the screen.
    QString shownText() const;
};

inline constexpr int restoreReasonCount = 12;

/// In the order in which they are shown.
const std::array<RestoreReason, restoreReasonCount>& restoreReasons();

} // namespace wizards
