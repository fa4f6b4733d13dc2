// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's slots that open dialogs or pages of the menus Configuration and Help.
#include <QUrl>

#include "app/about_dlg.h"
#include "app/help.h"
#include "app/simple_gui_main_window.h"
#include "config/ad_account_dlg.h"
#include "config/admin_flow.h"
#include "config/init_clnt_cfg_dlg.h"
#include "config/recovery_dlg.h"
#include "config/register_dlg.h"
#include "config/tfa_users_viewer.h"
#include "session/process_values.h"
#include "ui/branding_resources.h"

namespace {

template <class Dialog, class... Arguments>
void runDialog(QWidget& parent, const QString& errorTitle, Arguments... arguments) {
    ui::remoteAction(parent, errorTitle, ui::Cursor::arrow, [&] {
        Dialog dialog(arguments..., &parent);
        dialog.exec();
    });
}

} // namespace

void SimpleGUIMainWindow::on_actionRegister_triggered() {
    runDialog<RegisterDlg>(*this, tr("Configuration Error"));
}

void SimpleGUIMainWindow::on_actionRegistration_Info_triggered() {
    runDialog<InitClntCfgDlg>(*this, tr("Configuration Error"), false);
}

void SimpleGUIMainWindow::on_actionLDAP_Account_triggered() {
    runDialog<ADAccountDlg>(*this, tr("LDAP User Validation Error"));
}

void SimpleGUIMainWindow::on_actionTFASettings_triggered() {
    runDialog<TFAUsersViewer>(*this, tr("2FA Settings Error"));
}

void SimpleGUIMainWindow::on_action_About_triggered() {
    runDialog<AboutDlg>(*this, tr("Configuration Error"));
}

void SimpleGUIMainWindow::on_action_Recovery_triggered() {
    runDialog<RecoveryDlg>(*this, tr("Configuration Error"));
}

void SimpleGUIMainWindow::on_actionAdmin_triggered() {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow,
                     [this] { config::editAdminTimes(*this); });
}

void SimpleGUIMainWindow::on_actionLogo_triggered() {
    app::openUrl(QUrl::fromUserInput(ui::g_branding.homePageUrl()));
}

void SimpleGUIMainWindow::on_actionHelp_triggered() {
    if (const QUrl url = app::helpUrl(session::g_language); !app::openGuide(url))
        showStatus(tr("Failed to open the help file %1.").arg(url.toDisplayString()));
}
