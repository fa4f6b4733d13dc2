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

/// Whether the agent needs customer information first: it reports that it is new, or lacks details
/// about the customer. An agent that doesn't store them needs none.
bool needsInitialConfiguration(const std::vector<hessiancln::tarn_client_info>& agent,
                               const std::optional<hessiancln::user_info>& customer);

/// Likewise, with data requested from the agent. Throws what the calls throw.
bool asksForInitialConfiguration(hessiancln::ClientConnection& connection);

} // namespace app
