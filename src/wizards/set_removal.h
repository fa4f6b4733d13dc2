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
/// agent does so in the returned activity. Throws what the calls throw; completed removals aren't
/// rolled back.
boost::shared_ptr<hessiancln::GenericActivity>
removeSet(const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
