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

/// Lets the user delete from a set, with `parent` as the parent. A set without files can only be
/// removed as a whole. Returns no value if the user cancelled; otherwise the agent's activity, to
/// be kept until it is shown, or null if there is nothing to do. Throws what the calls throw;
/// completed steps aren't rolled back.
std::optional<boost::shared_ptr<hessiancln::GenericActivity>>
deleteFromSet(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
