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

/// Lets the user delete from a set in front of `parent`. A set that holds no files can only be
/// removed as a whole. Nothing if the user gave up; else what the agent does now, to be kept until
/// it is shown, and null if there is nothing to do. Raises what the calls raise; what was done
/// before them stays.
std::optional<boost::shared_ptr<hessiancln::GenericActivity>>
deleteFromSet(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
