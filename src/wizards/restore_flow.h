// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <boost/shared_ptr.hpp>

class QWidget;

namespace hessiancln {
class BackupSet;
class GenericActivity;
} // namespace hessiancln

namespace wizards {

/// Lets the user restore from a set in front of `parent`. Nothing if the user gave up or the set
/// holds nothing; else what the agent does now, to be kept until it is shown, and null if there is
/// nothing to do. Raises what the calls raise.
std::optional<boost::shared_ptr<hessiancln::GenericActivity>>
restoreFromSet(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
