// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/help.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>

namespace app {

QUrl guideIn(const QStringList& folders, const QString& language) {
    QStringList names{QStringLiteral("user-guide.pdf")};
    if (!language.isEmpty())
        names.prepend(QStringLiteral("user-guide.%1.pdf").arg(language));
    QString file;
    for (const QString& folder : folders)
        for (const QString& name : names) {
            file = QDir(folder).absoluteFilePath(name);
            if (QFile::exists(file))
                return QUrl::fromLocalFile(file);
        }
    return QUrl::fromLocalFile(file);
}

QUrl helpUrl(const QString& language) {
    const QString given = QStringLiteral(TARN_GUIDE_URL);
    if (!given.isEmpty())
        return QUrl(given);
    const QString besideProgram = QCoreApplication::applicationDirPath() + QStringLiteral("/doc");
    return guideIn({besideProgram, QStringLiteral(TARN_GUIDE_FOLDER)}, language);
}

bool openGuide(const QUrl& url) {
    // Desktops accept the URL of a missing file without an error.
    if (url.isLocalFile() && !QFile::exists(url.toLocalFile()))
        return false;
    return openUrl(url);
}

bool openUrl(const QUrl& url) {
    const QString current = QDir::currentPath();
    QDir::setCurrent(QDir::homePath());
    const bool opened = QDesktopServices::openUrl(url);
    QDir::setCurrent(current);
    return opened;
}

} // namespace app
