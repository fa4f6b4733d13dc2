// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

class QWidget;

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// Runs the wizard for how long a set's generations are kept in front of `parent`. Whether it was
/// written: the user may give up, or fail to give a code where the agent wants one. Raises what the
/// calls raise; what was written before them stays.
bool editRetention(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
