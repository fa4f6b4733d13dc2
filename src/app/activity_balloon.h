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

/// The name of a backup set; nothing if it can't be had.
using SetNames = std::function<std::optional<QString>(std::int32_t setId)>;

/// What a balloon says about activities that have begun and ended: a line for each, of which at
/// most ten. Where there are more, the last line says how many.
QString activityBalloonText(const QList<hessiancln::running_activity_info>& appeared,
                            const QList<hessiancln::running_activity_info>& disappeared,
                            const SetNames& nameOf);

} // namespace app
