// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/retention_rule_manager.h"

#include <utility>
#include <vector>

#include "simulator/remote/interval_time_retention_option.h"
#include "simulator/remote/retention_rule.h"

namespace simulator {
namespace {

void removeUnused(World& world, const RetentionRule::State& rule) {
    for (const World::Set& set : world.sets())
        if (set->info.retention_rule_id == rule->id)
            throw Refusal("The backup set '" + set->info.name +
                          "' still uses the retention rule '" + rule->name + "'.");
    world.retentionRules.remove(rule);
}

} // namespace

RetentionRuleManager::RetentionRuleManager(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened)) {
    implements("RetentionRuleManager");
    on("definedRules", [this, &world] {
        std::vector<std::shared_ptr<RetentionRule>> list;
        for (const auto& rule : world.retentionRules.all())
            list.push_back(std::make_shared<RetentionRule>(session(), world, rule));
        return list;
    });
    on("createRule", [this, &world] {
        return std::make_shared<RetentionRule>(session(), world, world.retentionRules.add({}));
    });
    on("removeRule", [&world](const std::shared_ptr<RetentionRule>& rule) {
        removeUnused(world, rule->state());
    });
    on("createIntervalTimeRetention", [this] {
        return std::make_shared<IntervalTimeRetentionOption>(
            session(), std::make_shared<RetentionOptionState>());
    });
}

} // namespace simulator
