// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace config {

/// Runs the wizard for the times of the agent's own tasks with `parent` as its parent, and writes
/// them if the wizard was finished. Throws what the calls throw.
void editAdminTimes(QWidget& parent);

} // namespace config
