// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// Makes the schedule of a set clean up according to its retention rule or, without a rule, stop
/// doing so. A set without a schedule is left unchanged. Throws what the calls throw; completed
/// writes aren't rolled back.
void syncRetentionTask(hessiancln::BackupSet& set);

} // namespace wizards
