// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/user_name_validator.h"

#include <QToolTip>
#include <QWidget>

namespace {

QRegExp userName() {
    // A domain of at most 20 characters with a backslash, then a name of 1 to 20 characters.
    return QRegExp(
        QStringLiteral(R"re(([^\\/"\[\]:|<>+=;,?*@]{0,20}\\)?[^\\/"\[\]:|<>+=;,?*@]{1,20})re"));
}

} // namespace

CUserNameValidator::CUserNameValidator(QWidget* edit)
    : QRegExpValidator(userName(), edit)
    , edit_(edit) {}

QValidator::State CUserNameValidator::validate(QString& input, int& position) const {
    const State state = QRegExpValidator::validate(input, position);
    if (state == Invalid)
        QToolTip::showText(edit_->mapToGlobal(QPoint(0, 0)),
                           tr("User names cannot contain these characters: \\/\"[]:|<>+=;,?*@ and "
                              "must be less than 20 characters"),
                           edit_);
    return state;
}
