// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>

class QWidget;

namespace wizards {

/// Runs the new set wizard in front of `parent` and makes the set that it describes. Its id, or
/// none if the user gave up; then the agent has nothing new. Raises what the calls raise; what was
/// written before them stays, and that may be a set without the rest of its definition.
std::optional<std::int32_t> createBackupSet(QWidget& parent);

} // namespace wizards
