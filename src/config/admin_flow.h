// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace config {

/// Runs the wizard for the times of the agent's own work in front of `parent`, and writes them if
/// it was finished. Raises what the calls raise.
void editAdminTimes(QWidget& parent);

} // namespace config
