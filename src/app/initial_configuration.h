// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include "api/tarn_client_info.h"
#include "api/user_info.h"

namespace hessiancln {
class ClientConnection;
}

namespace app {

/// Whether somebody has to tell the agent about the customer first: it says that it is new, or it
/// knows too little of the customer. One that keeps nothing about customers needs to know nothing.
bool needsInitialConfiguration(const std::vector<hessiancln::tarn_client_info>& agent,
                               const std::optional<hessiancln::user_info>& customer);

/// The same, asked from the agent. Raises what the calls raise.
bool asksForInitialConfiguration(hessiancln::ClientConnection& connection);

} // namespace app
