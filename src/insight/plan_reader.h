// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <functional>

#include <boost/shared_ptr.hpp>

#include "insight/schedule_plan.h"

namespace hessiancln {
class Schedule;
class ScheduleDetail;
} // namespace hessiancln

namespace insight {

/// Reads a schedule from the agent one call at a time, so that a window stays responsive.
class PlanReader {
public:
    explicit PlanReader(boost::shared_ptr<hessiancln::Schedule> schedule);
    PlanReader(const PlanReader&) = delete; // pending calls refer to it
    PlanReader& operator=(const PlanReader&) = delete;

    bool isDone() const { return calls_.empty(); }
    /// Makes one call unless everything has been read. Throws what the call throws; nothing is read
    /// then.
    void step();

    /// The part read so far.
    const SchedulePlan& plan() const { return plan_; }

private:
    using Detail = boost::shared_ptr<hessiancln::ScheduleDetail>;

    void askFor(const Detail& detail, PlanDetail& read);
    void askForDays(const Detail& detail, PlanDetail& read);

    SchedulePlan plan_;
    std::deque<std::function<void()>> calls_;
};

} // namespace insight
