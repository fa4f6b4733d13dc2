// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/standard_buttons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace ui {

namespace {

bool agrees(QDialogButtonBox::ButtonRole role) {
    return role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole;
}

} // namespace

void setStandardButtonPictures(QDialog& dialog) {
    const QIcon yes(QStringLiteral(":/button/ok.png"));
    const QIcon no(QStringLiteral(":/button/cancel.png"));
    for (auto* box : dialog.findChildren<QDialogButtonBox*>())
        for (QAbstractButton* button : box->buttons())
            button->setIcon(agrees(box->buttonRole(button)) ? yes : no);
}

} // namespace ui
