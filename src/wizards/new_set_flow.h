// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>

#include <QString>

class QWidget;

namespace wizards {

struct NewSet {
    std::int32_t id = 0;
    QString name;
};

/// Runs the new set wizard in front of `parent` and makes the set that it describes. Nothing if the
/// user gave up; then the agent has nothing new. Raises what the calls raise; what was written
/// before them stays, and that may be a set without the rest of its definition.
std::optional<NewSet> createBackupSet(QWidget& parent);

} // namespace wizards
