// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_path.h"

#include <QAbstractItemModel>
#include <QStringList>

#include "models/display_path.h"
#include "wizards/local_path.h"

namespace wizards {

QString timeInDirectoryName(const QDateTime& time) {
    return time.toString(QStringLiteral("yyyy_MMM_dd_HH-mm-ss"));
}

QString directoryIn(const QString& directory, const QString& name) {
    return directory + QLatin1Char('/') + name + QLatin1Char('/');
}

QModelIndex closestDirectory(const QAbstractItemModel& tree, const QString& path,
                             hessiancln::ClientOSType system) {
    QStringList names = path.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    for (; !names.isEmpty(); names.removeLast()) {
        const QModelIndex found = models::indexAtPath(tree, names, caseSensitivityOf(system));
        if (found.isValid())
            return found;
    }
    return {};
}

} // namespace wizards
