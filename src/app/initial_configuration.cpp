// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/initial_configuration.h"

#include <algorithm>

namespace app {

bool needsInitialConfiguration(const std::vector<hessiancln::tarn_client_info>& agent,
                               const hessiancln::user_info& customer) {
    const bool isNew = std::any_of(agent.begin(), agent.end(), [](const auto& row) {
        return row.name == "InitialClient" && row.value == "Yes";
    });
    return isNew || hessiancln::isMissing(customer);
}

} // namespace app
