// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace wizards {

/// Whether the source that somebody typed is on the agent's own computer. Its name counts in this
/// spelling only; what follows a backslash doesn't matter.
bool isLocalComputer(const QString& source);

} // namespace wizards
