// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace wizards {
struct RestorePages;
}

namespace insight {

/// Gives each page on which the restore wizard may end a box that sums up what is about to happen.
/// It asks the agent for nothing.
void addRestoreSummary(const wizards::RestorePages& pages);

} // namespace insight
