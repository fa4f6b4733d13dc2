// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/file_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>

#include "ui/branding_resources.h"
#include "ui/standard_buttons.h"

namespace ui {

namespace {

/// The labels in front of Qt's combo boxes don't belong to them, and neither has a name.
void nameField(const QFileDialog& dialog, const char* label, const char* field) {
    auto* text = dialog.findChild<QLabel*>(QLatin1String(label));
    auto* named = dialog.findChild<QComboBox*>(QLatin1String(field));
    if (text && named)
        text->setBuddy(named);
}

} // namespace

void adaptFileDialog(QFileDialog& dialog) {
    dialog.setWindowIcon(g_branding.applicationIcon());
    setStandardButtonPictures(dialog);
    nameField(dialog, "lookInLabel", "lookInCombo");
    nameField(dialog, "fileTypeLabel", "fileTypeCombo");
}

void rejectFileDialogs() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QFileDialog*>(window); dialog && dialog->isVisible())
            dialog->reject();
}

} // namespace ui
