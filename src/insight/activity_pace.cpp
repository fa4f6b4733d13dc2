// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/activity_pace.h"

#include <cmath>
#include <utility>

namespace insight {

using hessiancln::running_activity_info;

namespace {

constexpr std::int64_t secondsOfSpeed = 60;
/// Longer estimates are of no use.
constexpr double longestEstimate = 365.0 * 86'400;

std::optional<std::int64_t> estimate(std::int64_t left, const std::optional<double>& speed) {
    if (left <= 0 || !speed || *speed <= 0)
        return std::nullopt;
    const double seconds = std::ceil(static_cast<double>(left) / *speed);
    if (seconds > longestEstimate)
        return std::nullopt;
    return static_cast<std::int64_t>(seconds);
}

} // namespace

void ActivityPace::observe(const std::vector<running_activity_info>& running, std::int64_t now) {
    std::map<std::int32_t, Watched> watched;
    for (const running_activity_info& activity : running) {
        Watched entry;
        if (const auto known = watched_.find(activity.activity_id); known != watched_.end())
            entry = std::move(known->second);
        add(entry, activity, now);
        watched.insert_or_assign(activity.activity_id, std::move(entry));
    }
    watched_ = std::move(watched);
}

void ActivityPace::add(Watched& watched, const running_activity_info& activity, std::int64_t now) {
    auto& samples = watched.samples;
    const Sample sample{now, activity.size_processed, activity.files_processed};
    // Decreasing counts belong to another piece of work; so do counts from before a clock change.
    if (!samples.empty() && (sample.bytes < samples.back().bytes ||
                             sample.files < samples.back().files || now < samples.back().time))
        samples.clear();
    const bool moved = samples.empty() || sample.bytes != samples.back().bytes ||
                       sample.files != samples.back().files;
    if (moved)
        watched.lastMove = now;
    if (!samples.empty() && samples.back().time == now)
        samples.back() = sample;
    else
        samples.push_back(sample);
    while (samples.size() > 2 && samples[1].time <= now - secondsOfSpeed)
        samples.pop_front();
    watched.bytesLeft = activity.size_left;
    watched.filesLeft = activity.files_left;
}

std::optional<Pace> ActivityPace::of(std::int32_t activityId) const {
    const auto found = watched_.find(activityId);
    if (found == watched_.end())
        return std::nullopt;
    const auto& [samples, lastMove, bytesLeft, filesLeft] = found->second;
    const Sample& first = samples.front();
    const Sample& last = samples.back();
    Pace pace;
    pace.idleFor = last.time - lastMove;
    if (const auto span = static_cast<double>(last.time - first.time); span > 0) {
        // In floating point, because the difference of an agent's counts may overflow an integer.
        pace.bytesPerSecond =
            (static_cast<double>(last.bytes) - static_cast<double>(first.bytes)) / span;
        pace.filesPerSecond =
            (static_cast<double>(last.files) - static_cast<double>(first.files)) / span;
    }
    pace.secondsLeft = bytesLeft > 0 ? estimate(bytesLeft, pace.bytesPerSecond)
                                     : estimate(filesLeft, pace.filesPerSecond);
    return pace;
}

} // namespace insight
