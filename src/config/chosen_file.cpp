// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/chosen_file.h"

#include <algorithm>

namespace config {

QString firstFileEndingIn(QLatin1String ending, const QStringList& names) {
    const auto found = std::find_if(names.begin(), names.end(), [ending](const QString& name) {
        return name.endsWith(ending, Qt::CaseInsensitive);
    });
    return found == names.end() ? QString() : *found;
}

} // namespace config
