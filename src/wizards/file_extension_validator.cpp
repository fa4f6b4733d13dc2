// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/file_extension_validator.h"

#include <QLineEdit>
#include <QToolTip>

namespace {

QRegExp extensions() {
    return QRegExp(QStringLiteral(R"x([^\\/":<>?*\|\.]{1,256}(\|[^\\/":<>?*\|\.]{1,256})*)x"));
}

} // namespace

CFileExtensionValidator::CFileExtensionValidator(const QLineEdit& inclusion,
                                                 const QLineEdit& exclusion, QObject* parent)
    : QRegExpValidator(extensions(), parent)
    , inclusion_(inclusion)
    , exclusion_(exclusion) {}

QValidator::State CFileExtensionValidator::validate(QString& text, int& position) const {
    const State state = QRegExpValidator::validate(text, position);
    if (state == Invalid) {
        const QLineEdit& field = inclusion_.isVisible() ? inclusion_ : exclusion_;
        QToolTip::showText(field.mapToGlobal(QPoint(0, 0)),
                           tr("A file extension cannot contain any of the following characters: "
                              "\\/:*?\"<>|."));
    }
    return state;
}
