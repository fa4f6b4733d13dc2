// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/local_path.h"

#include <QAbstractItemModel>
#include <QStringList>

namespace wizards {

namespace {

constexpr QLatin1Char slash('/');
constexpr QLatin1Char backslash('\\');

bool isSeparator(QChar character) {
    return character == slash || character == backslash;
}

/// Replaces each run of separators with a single one.
QString withSeparator(const QString& path, QLatin1Char separator) {
    QString result;
    result.reserve(path.size());
    bool inRun = false;
    for (const QChar character : path) {
        const bool isOne = isSeparator(character);
        if (!isOne)
            result += character;
        else if (!inRun)
            result += separator;
        inRun = isOne;
    }
    return result;
}

QModelIndex childNamed(const QAbstractItemModel& tree, const QModelIndex& parent,
                       const QString& name, Qt::CaseSensitivity sensitivity) {
    const int rows = tree.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = tree.index(row, 0, parent);
        if (index.data().toString().compare(name, sensitivity) == 0)
            return index;
    }
    return {};
}

} // namespace

QString folderOfTreePath(const QString& treePath, hessiancln::ClientOSType system) {
    if (system == hessiancln::ClientOSType::Windows)
        return treePath;
    return withSeparator(treePath, slash);
}

QString treePathOfFolder(const QString& folder, hessiancln::ClientOSType system) {
    if (system == hessiancln::ClientOSType::Windows)
        return folder;
    QString below = withSeparator(folder, backslash);
    if (below.startsWith(backslash))
        below.remove(0, 1);
    return QStringLiteral("/\\") + below;
}

Qt::CaseSensitivity caseSensitivityOf(hessiancln::ClientOSType system) {
    return system == hessiancln::ClientOSType::Windows ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

QString localStoragePath(const QString& folder) {
    QString path = folder.trimmed();
    while (!path.isEmpty() && (isSeparator(path.back()) || path.back().isSpace()))
        path.chop(1);
    return path + backslash;
}

QModelIndex deepestIndex(const QAbstractItemModel& tree, const QString& treePath,
                         Qt::CaseSensitivity sensitivity) {
    QModelIndex deepest;
    for (const QString& name : treePath.split(backslash)) {
        const QModelIndex next = childNamed(tree, deepest, name, sensitivity);
        if (!next.isValid())
            break;
        deepest = next;
    }
    return deepest;
}

} // namespace wizards
