// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/agent_policy.h"

#include <algorithm>
#include <string_view>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/process_values.h"
#include "session/required.h"

namespace app {

namespace {

using hessiancln::tarn_client_info;

// The names of the row for the policy's origin, on an English and a German agent. The value is
// English on both.
constexpr std::string_view policyNames[] = {"Centrally Managed Backup Policy",
                                            "Zentral-verwaltete Backup-Politik"};
constexpr std::string_view yes = "Yes";

bool namesPolicy(const tarn_client_info& info) {
    return std::find(std::begin(policyNames), std::end(policyNames), info.name) !=
           std::end(policyNames);
}

} // namespace

void readAgentPolicy() {
    const auto connection = session::getConnection();
    const auto rows = connection->getTarnClientInfo();
    const auto policy = std::find_if(rows.begin(), rows.end(), namesPolicy);
    if (policy != rows.end())
        session::g_isCentrallyManaged = policy->value == yes;
    session::g_is2FAEnabled = session::required(connection->getTFAManager())->is2FAEnabled();
}

} // namespace app
