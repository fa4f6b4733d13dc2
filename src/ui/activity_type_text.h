// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>
#include <QString>

#include "api/activity_records.h"

namespace ui {

/// The name of this activity type for users.
QString activityTypeLabel(hessiancln::ActivityType type);
QIcon activityTypeIcon(hessiancln::ActivityType type);

} // namespace ui
