// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QString>

#include "api/backup_set_records.h"

namespace wizards {

/// Whether one of the sets has the name, in whatever case.
bool isNameTaken(const QString& name, const std::vector<hessiancln::backup_set_info>& sets);

} // namespace wizards
