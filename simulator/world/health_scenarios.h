// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>

#include "simulator/world/scenario.h"

namespace simulator {

/// Names and sizes for tests of the scenarios about the health of sets.
namespace health {

inline constexpr std::string_view missed = "Missed last night";        ///< 5 hours ago
inline constexpr std::string_view old = "Three days old";              ///< on a daily schedule
inline constexpr std::string_view lastMonth = "Accounts of the month"; ///< backed up an hour ago
inline constexpr std::string_view unscheduled = "By hand";             ///< 400 days old
inline constexpr std::string_view withErrors = "Ended with errors";    ///< 3 errors, 1 warning
inline constexpr std::string_view unsuccessful = "No success";
inline constexpr std::string_view withWarnings = "Ended with warnings";
inline constexpr std::string_view stalled = "Stalled"; ///< at 40 percent of 8 GB
inline constexpr std::string_view moving = "Moving";

inline constexpr std::size_t folders = 1'000; ///< below the drive, on two levels
inline constexpr std::size_t files = 100'000;
/// In the last of the folders.
inline constexpr std::string_view needle = "Needle in the haystack.odt";

} // namespace health

/// Fills a world whose agent is already set up for one of the scenarios with problems.
void populateForHealth(World& world, Scenario scenario);

} // namespace simulator
