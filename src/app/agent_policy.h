// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace app {

/// Asks the agent whether its backup sets are managed centrally and whether it wants codes, and
/// keeps both in the process's values. Raises what the calls raise.
void readAgentPolicy();

} // namespace app
