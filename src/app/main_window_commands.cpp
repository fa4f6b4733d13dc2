// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's commands that open something else: a page, a dialog or a wizard.
#include <QDesktopServices>
#include <QUrl>

#include "app/about_dlg.h"
#include "app/backup_set_view_item.h"
#include "app/open_backup_set.h"
#include "app/simple_gui_main_window.h"
#include "config/ad_account_dlg.h"
#include "config/admin_flow.h"
#include "config/init_clnt_cfg_dlg.h"
#include "config/recovery_dlg.h"
#include "config/register_dlg.h"
#include "config/tfa_users_viewer.h"
#include "session/process_values.h"
#include "ui/branding_resources.h"
#include "ui/remote_action.h"
#include "wizards/delete_flow.h"
#include "wizards/items_flow.h"
#include "wizards/new_set_flow.h"
#include "wizards/restore_flow.h"
#include "wizards/retention_flow.h"
#include "wizards/schedule_flow.h"

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

void SimpleGUIMainWindow::on_actionRegister_triggered() {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow, [this] {
        RegisterDlg dialog(this);
        dialog.exec();
    });
}

void SimpleGUIMainWindow::on_action_Recovery_triggered() {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow, [this] {
        RecoveryDlg dialog(this);
        dialog.exec();
    });
}

void SimpleGUIMainWindow::on_actionRegistration_Info_triggered() {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow, [this] {
        InitClntCfgDlg dialog(false, this);
        dialog.exec();
    });
}

void SimpleGUIMainWindow::on_actionLDAP_Account_triggered() {
    ui::remoteAction(*this, tr("LDAP User Validation Error"), ui::Cursor::arrow, [this] {
        ADAccountDlg dialog(this);
        dialog.exec();
    });
}

void SimpleGUIMainWindow::on_actionAdmin_triggered() {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow,
                     [this] { config::editAdminTimes(*this); });
}

void SimpleGUIMainWindow::on_actionTFASettings_triggered() {
    ui::remoteAction(*this, tr("2FA Settings Error"), ui::Cursor::arrow, [this] {
        TFAUsersViewer dialog(this);
        dialog.exec();
    });
}

void SimpleGUIMainWindow::OnNewBackupSet() {
    ui::remoteAction(*this, tr("New Backup Set Error"), ui::Cursor::arrow, [this] {
        if (const auto id = wizards::createBackupSet(*this))
            selectSetOnceListed(*id);
    });
}

void SimpleGUIMainWindow::on_btnItems_clicked() {
    const BackupSetViewItem* card = requireSetItem();
    if (!card)
        return;
    // A copy: the card may go while the wizard is open.
    const hessiancln::backup_set_info info = card->record();
    ui::remoteAction(*this, tr("Editing Backup Set Items Error"), ui::Cursor::arrow, [this, &info] {
        const wizards::SetFeatures features = wizards::readSetFeatures();
        wizards::editItems(*this, features, app::openBackupSet(info.id), info.has_items);
    });
}

void SimpleGUIMainWindow::on_btnRetention_clicked() {
    editSelectedSet(wizards::editRetention);
}

void SimpleGUIMainWindow::on_btnSchedule_clicked() {
    editSelectedSet(wizards::editSchedule);
}

void SimpleGUIMainWindow::editSelectedSet(
    bool (*edit)(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set)) {
    const BackupSetViewItem* card = requireSetItem();
    if (!card)
        return;
    const std::int32_t id = card->record().id;
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this, edit, id] {
        if (edit(*this, app::openBackupSet(id)))
            showSetDetails();
    });
}

void SimpleGUIMainWindow::OnRestore() {
    const BackupSetViewItem* card = requireSetItem();
    if (!card)
        return;
    const std::int32_t id = card->record().id;
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this, id] {
        if (const auto activity = wizards::restoreFromSet(*this, app::openBackupSet(id)))
            refreshAll();
    });
}

void SimpleGUIMainWindow::OnDelete() {
    const BackupSetViewItem* card = requireSetItem();
    if (!card)
        return;
    // The key that leads here isn't disabled with the command.
    if (session::g_isCentrallyManaged && card->record().is_created_by_policy)
        return;
    const std::int32_t id = card->record().id;
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this, id] {
        if (const auto activity = wizards::deleteFromSet(*this, app::openBackupSet(id)))
            refreshAll();
    });
}
