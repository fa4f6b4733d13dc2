// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's commands that open something else: a page, a dialog or a wizard.
#include <QDesktopServices>
#include <QUrl>

#include "app/about_dlg.h"
#include "app/backup_set_view_item.h"
#include "app/simple_gui_main_window.h"
#include "ui/branding_resources.h"
#include "ui/remote_action.h"

void SimpleGUIMainWindow::on_actionLogo_triggered() {
    QDesktopServices::openUrl(QUrl::fromUserInput(ui::g_branding.homePageUrl()));
}

void SimpleGUIMainWindow::on_actionHelp_triggered() {
    const QString url = QStringLiteral(TARN_HELP_URL);
    if (!QDesktopServices::openUrl(QUrl(url)))
        showStatus(tr("Failed to open the help file %1.").arg(url));
}

void SimpleGUIMainWindow::on_action_About_triggered() {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow, [this] {
        AboutDlg dialog(this);
        dialog.exec();
    });
}

void SimpleGUIMainWindow::on_actionRegister_triggered() {}

void SimpleGUIMainWindow::on_action_Recovery_triggered() {}

void SimpleGUIMainWindow::on_actionRegistration_Info_triggered() {}

void SimpleGUIMainWindow::on_actionLDAP_Account_triggered() {}

void SimpleGUIMainWindow::on_actionAdmin_triggered() {}

void SimpleGUIMainWindow::on_actionTFASettings_triggered() {}

void SimpleGUIMainWindow::OnNewBackupSet() {}

void SimpleGUIMainWindow::on_btnItems_clicked() {
    requireSetItem();
}

void SimpleGUIMainWindow::on_btnRetention_clicked() {
    requireSetItem();
}

void SimpleGUIMainWindow::on_btnSchedule_clicked() {
    requireSetItem();
}

void SimpleGUIMainWindow::OnRestore() {
    requireSetItem();
}

void SimpleGUIMainWindow::OnDelete() {
    requireSetItem();
}
