// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

#include "wizards/set_features.h"

class QWidget;

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// Runs the wizard for the source, the items and the options of a set, with `parent` as its parent,
/// and writes the result unless the user cancels. Informs the user if this program can't edit the
/// set. `hasItems`: whether the set has any yet. Throws what the calls throw; completed writes
/// aren't rolled back.
void editItems(QWidget& parent, const SetFeatures& features,
               const boost::shared_ptr<hessiancln::BackupSet>& set, bool hasItems);

} // namespace wizards
