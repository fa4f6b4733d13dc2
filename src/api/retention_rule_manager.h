// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/remote_object.h"
#include "api/retention_rule.h"
#include "api/time_retention_option.h"

namespace hessiancln {

/// Lists, creates and removes retention rules.
class RetentionRuleManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Rule = boost::shared_ptr<RetentionRule>;
    using IntervalOption = boost::shared_ptr<IntervalTimeRetentionOption>;

    std::vector<Rule> definedRules();
    Rule createRule();
    void removeRule(const Rule& rule);
    /// An option that doesn't belong to a rule yet.
    IntervalOption createIntervalTimeRetention();
};

} // namespace hessiancln
