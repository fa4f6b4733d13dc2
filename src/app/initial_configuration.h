// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "api/tarn_client_info.h"
#include "api/user_info.h"

namespace app {

/// Whether somebody has to tell the agent about the customer first: it says that it is new, or it
/// knows too little of the customer.
bool needsInitialConfiguration(const std::vector<hessiancln::tarn_client_info>& agent,
                               const hessiancln::user_info& customer);

} // namespace app
