// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_translation.h"

#include <QCoreApplication>

namespace support {

QStringList languages() {
    return QStringLiteral(TARN_LANGUAGES).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString translationFile(const QString& language) {
    return QStringLiteral(TARN_TRANSLATION_PREFIX) + language;
}

Translation::Translation(const QString& language) {
    // Empty, but not null, so that Qt tries no other names.
    const QString none = QLatin1String("");
    if (!texts_.load(translationFile(language), none, none, none))
        qFatal("There are no texts in the language %s", qPrintable(language));
    QCoreApplication::installTranslator(&texts_);
}

Translation::~Translation() {
    QCoreApplication::removeTranslator(&texts_);
}

} // namespace support
