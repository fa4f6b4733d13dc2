// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace app {

/// Asks the agent whether its backup sets are managed centrally and whether it requires codes, and
/// stores both in the process values. Throws what the calls throw.
void readAgentPolicy();

} // namespace app
