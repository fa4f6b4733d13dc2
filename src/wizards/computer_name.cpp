// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/computer_name.h"

namespace wizards {

bool isLocalComputer(const QString& source) {
    const QString name = source.trimmed().section(QLatin1Char('\\'), 0, 0);
    return name == QLatin1String("My Computer") || name == QLatin1String("Tarn-Client Computer");
}

} // namespace wizards
