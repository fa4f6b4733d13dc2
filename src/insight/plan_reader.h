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

/// Reads a schedule from the agent, one call at a time, so that a window stays alive meanwhile.
class PlanReader {
public:
    explicit PlanReader(boost::shared_ptr<hessiancln::Schedule> schedule);
    PlanReader(const PlanReader&) = delete; // the calls to come refer to it
    PlanReader& operator=(const PlanReader&) = delete;

    bool isDone() const { return calls_.empty(); }
    /// Makes one call, unless all is read. Raises what the call raises, and has read nothing then.
    void step();

    /// What has been read by now.
    const SchedulePlan& plan() const { return plan_; }

private:
    using Detail = boost::shared_ptr<hessiancln::ScheduleDetail>;

    void askFor(const Detail& detail, PlanDetail& read);
    void askForDays(const Detail& detail, PlanDetail& read);

    SchedulePlan plan_;
    std::deque<std::function<void()>> calls_;
};

} // namespace insight
