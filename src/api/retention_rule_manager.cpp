// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/retention_rule_manager.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<RetentionRuleManager::Rule> RetentionRuleManager::definedRules() {
    return call<std::vector<Rule>>("definedRules");
}

RetentionRuleManager::Rule RetentionRuleManager::createRule() {
    return call<Rule>("createRule");
}

void RetentionRuleManager::removeRule(const Rule& rule) {
    call<void>("removeRule", rule);
}

RetentionRuleManager::IntervalOption RetentionRuleManager::createIntervalTimeRetention() {
    return call<IntervalOption>("createIntervalTimeRetention");
}

} // namespace hessiancln
