// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/set_names.h"

#include <algorithm>

#include "session/text.h"

namespace wizards {

bool isNameTaken(const QString& name, const std::vector<hessiancln::backup_set_info>& sets) {
    return std::any_of(sets.begin(), sets.end(), [&name](const hessiancln::backup_set_info& set) {
        return session::fromWire(set.name).compare(name, Qt::CaseInsensitive) == 0;
    });
}

} // namespace wizards
