// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QList>
#include <QString>

#include "api/activity_records.h"

namespace app {

/// The name of a backup set; no value if unavailable.
using SetNames = std::function<std::optional<QString>(std::int32_t setId)>;

/// Balloon text about activities that have started and ended: one line each, at most ten. If there
/// are more, the last line gives their number.
QString activityBalloonText(const QList<hessiancln::running_activity_info>& appeared,
                            const QList<hessiancln::running_activity_info>& disappeared,
                            const SetNames& nameOf);

} // namespace app
