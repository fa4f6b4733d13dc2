// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>
#include <QString>

#include "api/activity_records.h"

namespace ui {

/// What people call an activity of this type.
QString activityTypeLabel(hessiancln::ActivityType type);
QIcon activityTypeIcon(hessiancln::ActivityType type);

} // namespace ui
