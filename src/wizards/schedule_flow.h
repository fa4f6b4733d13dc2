// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

class QWidget;

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// Runs the wizard for a set's backup times, with `parent` as its parent. Returns whether it was
/// written: the user may cancel. Throws what the calls throw; completed writes aren't rolled back.
bool editSchedule(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
