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

/// Runs the new set wizard with `parent` as its parent and creates the set. Returns no value if the
/// user cancelled; the agent is then unchanged. Throws what the calls throw; completed writes
/// aren't rolled back and may include a partially defined set.
std::optional<NewSet> createBackupSet(QWidget& parent);

} // namespace wizards
