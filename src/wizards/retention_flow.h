// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

class QWidget;

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// Runs the wizard for how long a set's generations are kept, with `parent` as its parent. Returns
/// whether it was written: the user may cancel, or not enter a code if the agent requires one.
/// Throws what the calls throw; completed writes aren't rolled back.
bool editRetention(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
