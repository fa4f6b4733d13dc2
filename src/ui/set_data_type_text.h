// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "api/backup_set_records.h"

namespace ui {

/// The name of this data type of a backup set for users.
QString getSetDataType(hessiancln::BackupDataType type);

} // namespace ui
