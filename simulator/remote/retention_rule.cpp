// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/retention_rule.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace simulator {
namespace {

using Option = std::shared_ptr<TimeRetentionOption>;
using Span = hessiancln::retention_time_span;

constexpr std::int32_t mostGenerations = 9'999;

std::int32_t checkedCount(std::int32_t count, std::int32_t least) {
    if (count < least || count > mostGenerations)
        throw Refusal("A rule can't keep " + std::to_string(count) + " generations.");
    return count;
}

const Span& checkedSpan(const Span& span) {
    if (span.period < 0)
        throw Refusal("The time " + describe(span) + " is no time.");
    return span;
}

bool has(const RetentionRuleState& rule, const TimeRetentionOption::State& option) {
    return std::count(rule.options.begin(), rule.options.end(), option) != 0;
}

} // namespace

RetentionRule::RetentionRule(std::shared_ptr<Session> opened, World& world, State state)
    : Servant(std::move(opened))
    , world_(world)
    , state_(std::move(state)) {
    implements("RetentionRule");
    on("getName", [this] { return state_->name; });
    on("setName", [this](const std::string& name) { rename(name); });
    offerOptions();
    offerCleanup();
}

const RetentionRule::State& RetentionRule::state() const {
    if (!world_.retentionRules.holds(state_))
        throw Refusal("The retention rule '" + state_->name + "' was removed.");
    return state_;
}

void RetentionRule::offerOptions() {
    on("getKeepLastGenerations", [this] { return state_->keepLast; });
    on("setKeepLastGenerations",
       [this](std::int32_t count) { state()->keepLast = checkedCount(count, 1); });
    on("getTimeRetentions", [this] {
        std::vector<Option> list;
        for (const auto& option : state()->options)
            list.push_back(makeOption(session(), option));
        return list;
    });
    on("addTimeRetentionOption", [this](const Option& option) { add(option->state()); });
    on("removeTimeRetentionOption", [this](const Option& option) { remove(option->state()); });
}

void RetentionRule::offerCleanup() {
    on("getCleanupRemovedFiles", [this] { return state_->cleanupRemoved; });
    on("setCleanupRemovedFiles", [this](bool value) { state()->cleanupRemoved = value; });
    on("getCleanupRemovedAfter", [this] { return state_->cleanupAfter; });
    on("setCleanupRemovedAfter",
       [this](const Span& span) { state()->cleanupAfter = checkedSpan(span); });
    on("getCleanupRemovedKeep", [this] { return state_->cleanupKeep; });
    on("setCleanupRemovedKeep",
       [this](std::int32_t count) { state()->cleanupKeep = checkedCount(count, 0); });
    on("getLocalStorageRetention", [this] { return state_->localStorage; });
    on("setLocalStorageRetention",
       [this](const Span& span) { state()->localStorage = checkedSpan(span); });
}

void RetentionRule::rename(const std::string& name) {
    if (name.empty())
        throw Refusal("A retention rule needs a name.");
    const State other = world_.retentionRules.find(name);
    if (other && other != state_)
        throw Refusal("There is a retention rule '" + name + "' already.");
    state()->name = name;
}

void RetentionRule::add(const TimeRetentionOption::State& option) {
    for (const State& rule : world_.retentionRules.all())
        if (has(*rule, option))
            throw Refusal("The option belongs to the retention rule '" + rule->name + "' already.");
    if (option->validFor.period == 0 || (option->interval && option->repeat.period == 0))
        throw Refusal("The option of the retention rule lacks a time.");
    state()->options.push_back(option);
}

void RetentionRule::remove(const TimeRetentionOption::State& option) {
    if (!has(*state(), option))
        throw Refusal("The option doesn't belong to the retention rule '" + state_->name + "'.");
    std::erase(state_->options, option);
}

} // namespace simulator
