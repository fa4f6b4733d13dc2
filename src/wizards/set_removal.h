// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

namespace hessiancln {
class BackupSet;
class GenericActivity;
} // namespace hessiancln

namespace wizards {

/// Removes a set of the session's agent with its schedule, its retention rule and all its data. The
/// agent does so in the activity that is returned. Raises what the calls raise; what was removed
/// before them isn't put back.
boost::shared_ptr<hessiancln::GenericActivity>
removeSet(const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
