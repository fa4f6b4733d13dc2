// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/initial_configuration.h"

#include <algorithm>

#include "api/client_connection.h"
#include "session/required.h"

namespace app {

bool needsInitialConfiguration(const std::vector<hessiancln::tarn_client_info>& agent,
                               const std::optional<hessiancln::user_info>& customer) {
    const bool isNew = std::any_of(agent.begin(), agent.end(), [](const auto& row) {
        return row.name == "InitialClient" && row.value == "Yes";
    });
    return isNew || (customer && hessiancln::isMissing(*customer));
}

bool asksForInitialConfiguration(hessiancln::ClientConnection& connection) {
    const auto agent = connection.getTarnClientInfo();
    const auto manager = session::required(connection.getConfigurationManager());
    std::optional<hessiancln::user_info> known;
    if (const auto customer = manager->getUserInfoConfiguration())
        known = customer->getUserInfo();
    return needsInitialConfiguration(agent, known);
}

} // namespace app
