// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace simulator {

class World;

/// The ids of the schedules and the retention rules that `addPlans` makes for sets to share.
/// "On start-up" and "By the hour" are there as well, which no client of this kind makes.
namespace plans {

inline constexpr std::int32_t everyEvening = 1;    ///< weekly, from 20:00 to 06:00
inline constexpr std::int32_t firstOfTheMonth = 2; ///< from 19:30, without an end
inline constexpr std::int32_t onStartUp = 3;       ///< of another type, with a task of its own

inline constexpr std::int32_t standardRetention = 1; ///< a day for a week, a week for a month
inline constexpr std::int32_t byTheHour = 2;         ///< its option isn't one of intervals

} // namespace plans

/// Gives an empty world its schedules and retention rules.
void addPlans(World& world);

} // namespace simulator
