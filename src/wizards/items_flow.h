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

/// Runs the wizard for the source, the items and the options of a set in front of `parent`, and
/// writes what it says, if the user doesn't give up. Says so if this program can't edit the set.
/// `hasItems`: whether the set has any yet. Raises what the calls raise; what was written before
/// them stays.
void editItems(QWidget& parent, const SetFeatures& features,
               const boost::shared_ptr<hessiancln::BackupSet>& set, bool hasItems);

} // namespace wizards
