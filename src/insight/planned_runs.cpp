// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/planned_runs.h"

#include <algorithm>

#include <QDateTime>

namespace insight {

namespace {

constexpr double secondsADay = 86'400;
/// Anything shorter would be hard to see and to click.
constexpr double shortestPart = 1.0 / 72;

std::vector<PlannedRun> runsOf(const ScheduledSet& set, std::int64_t from, std::int64_t until,
                               const QTimeZone& zone) {
    std::vector<PlannedRun> runs;
    for (const PlannedStart& start : startsBetween(*set.plan, from, until, zone)) {
        std::int64_t end = start.start + std::clamp<std::int64_t>(set.duration, 1, lookAhead);
        if (start.stop && *start.stop > start.start)
            end = std::min(end, *start.stop);
        runs.push_back({set.setId, set.name, start.start, end, false});
    }
    return runs;
}

/// Marks the runs that start while a run of another set is going on.
void markLaterOnes(std::vector<PlannedRun>& runs) {
    const PlannedRun* last = nullptr;  // the run so far with the latest end
    const PlannedRun* other = nullptr; // that of the sets other than that of `last`
    for (PlannedRun& run : runs) {
        const PlannedRun* rival = last && last->setId == run.setId ? other : last;
        run.overlaps = rival && run.start < rival->end;
        if (!last || run.end > last->end) {
            if (last && last->setId != run.setId)
                other = last;
            last = &run;
        } else if (last->setId != run.setId && (!other || run.end > other->end)) {
            other = &run;
        }
    }
}

/// Marks the runs during which a run of another set starts.
void markEarlierOnes(std::vector<PlannedRun>& runs) {
    const PlannedRun* next = nullptr;  // the run behind
    const PlannedRun* other = nullptr; // the first one behind of a set other than that of `next`
    for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
        if (next && next->setId != run->setId)
            other = next;
        run->overlaps = run->overlaps || (other && other->start < run->end);
        next = &*run;
    }
}

/// `runs` must be sorted by start. Linear, since long runs may overlap all later ones.
void markOverlaps(std::vector<PlannedRun>& runs) {
    markLaterOnes(runs);
    markEarlierOnes(runs);
}

double partOfDay(const QDateTime& time) {
    return time.time().msecsSinceStartOfDay() / 1000.0 / secondsADay;
}

/// The first lane that is free from `begin` on; a lane ends with its last part.
int takeLane(std::vector<double>& ends, double begin, double end) {
    const auto free = std::ranges::find_if(ends, [begin](double last) { return last <= begin; });
    const auto lane = static_cast<int>(free - ends.begin());
    if (free == ends.end())
        ends.push_back(end);
    else
        *free = end;
    return lane;
}

} // namespace

std::vector<PlannedRun> plannedRuns(const std::vector<ScheduledSet>& sets, std::int64_t from,
                                    std::int64_t until, const QTimeZone& zone) {
    std::vector<PlannedRun> runs;
    for (const ScheduledSet& set : sets) {
        const auto more = runsOf(set, from, until, zone);
        runs.insert(runs.end(), more.begin(), more.end());
    }
    std::ranges::stable_sort(runs, {}, &PlannedRun::start);
    markOverlaps(runs);
    return runs;
}

std::vector<DayPart> dayParts(const std::vector<PlannedRun>& runs, std::int64_t from, int days,
                              const QTimeZone& zone, std::vector<int>& lanes) {
    const QDate first = QDateTime::fromSecsSinceEpoch(from, zone).date();
    std::vector<std::vector<double>> ends(static_cast<std::size_t>(days));
    std::vector<DayPart> parts;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const QDateTime start = QDateTime::fromSecsSinceEpoch(runs[i].start, zone);
        const QDateTime end = QDateTime::fromSecsSinceEpoch(runs[i].end, zone);
        const auto firstDay = static_cast<int>(first.daysTo(start.date()));
        const auto lastDay = static_cast<int>(first.daysTo(end.date()));
        for (int day = std::max(firstDay, 0); day <= lastDay && day < days; ++day) {
            DayPart part{i, day, day == firstDay ? partOfDay(start) : 0,
                         day == lastDay ? partOfDay(end) : 1, 0};
            if (day > firstDay && part.end <= 0)
                continue;
            part.end = std::clamp(part.end, std::min(part.begin + shortestPart, 1.0), 1.0);
            part.lane = takeLane(ends[static_cast<std::size_t>(day)], part.begin, part.end);
            parts.push_back(part);
        }
    }
    lanes.clear();
    for (const auto& day : ends)
        lanes.push_back(static_cast<int>(day.size()));
    return parts;
}

} // namespace insight
