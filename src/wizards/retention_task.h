// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// Lets the schedule of a set clean up what its retention rule doesn't keep, or, for a set without
/// a rule, no more. A set without a schedule is left alone. Raises what the calls raise; what was
/// written before them stays.
void syncRetentionTask(hessiancln::BackupSet& set);

} // namespace wizards
