// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/remote_object.h"
#include "api/retention_rule.h"
#include "api/time_retention_option.h"

namespace hessiancln {

/// Hands out, makes and removes retention rules.
class RetentionRuleManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Rule = boost::shared_ptr<RetentionRule>;
    using IntervalOption = boost::shared_ptr<IntervalTimeRetentionOption>;

    std::vector<Rule> definedRules() { return call<std::vector<Rule>>("definedRules"); }
    Rule createRule() { return call<Rule>("createRule"); }
    void removeRule(const Rule& rule) { call<void>("removeRule", rule); }
    /// An option that no rule has yet.
    IntervalOption createIntervalTimeRetention() {
        return call<IntervalOption>("createIntervalTimeRetention");
    }
};

} // namespace hessiancln
