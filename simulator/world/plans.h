// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace simulator {

class World;

/// The ids of the shared schedules and retention rules that `addPlans` creates. "On start-up" and
/// "By the hour" are kinds that no client of this type creates.
namespace plans {

inline constexpr std::int32_t everyEvening = 1;    ///< weekly, from 20:00 to 06:00
inline constexpr std::int32_t firstOfTheMonth = 2; ///< from 19:30, without an end time
inline constexpr std::int32_t onStartUp = 3;       ///< of another type, with its own task

inline constexpr std::int32_t standardRetention = 1; ///< one per day for a week, one per week for a
                                                     ///< month
inline constexpr std::int32_t byTheHour = 2;         ///< its option isn't an interval

} // namespace plans

/// Adds the schedules and retention rules to an empty world.
void addPlans(World& world);

} // namespace simulator
