// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// How the main window learns the agent's state, and what it lets the user do then.
#include <algorithm>
#include <string_view>

#include "api/client_connection.h"
#include "app/backup_set_view_item.h"
#include "app/enable_state.h"
#include "app/simple_gui_main_window.h"
#include "app/wire_time.h"
#include "session/connection.h"
#include "session/required.h"
#include "ui/error_box.h"
#include "ui_simple_gui_main_window.h"

namespace {

using hessiancln::tarn_client_info;

// The names under which an English and a German agent tell who makes the policy. The value is
// English under both.
constexpr std::string_view kPolicyNames[] = {"Centrally Managed Backup Policy",
                                             "Zentral-verwaltete Backup-Politik"};
constexpr std::string_view kYes = "Yes";

bool tellsPolicy(const tarn_client_info& info) {
    return std::find(std::begin(kPolicyNames), std::end(kPolicyNames), info.name) !=
           std::end(kPolicyNames);
}

} // namespace

void SimpleGUIMainWindow::refreshAll() {
    if (!session::connectedToAgent()) {
        clearActivities();
        clearSets();
        return;
    }
    try {
        RefreshTarnClientInfo();
        RefreshActivityLogs();
        refreshBackupSets();
    } catch (const std::exception& error) {
        showStatus(ui::errorText(error));
        clearActivities();
    }
}

void SimpleGUIMainWindow::clearActivities() {
    activityLog_.clear();
    running_.clear();
}

void SimpleGUIMainWindow::endSession(const std::exception& error) {
    showStatus(ui::errorText(error));
    clearActivities();
    OnDisconnect();
}

void SimpleGUIMainWindow::RefreshTarnClientInfo() {
    if (!session::connectedToAgent())
        return;
    try {
        readClientInfo();
        updateEnabling();
    } catch (const std::exception& error) {
        endSession(error);
    }
}

void SimpleGUIMainWindow::readClientInfo() {
    const auto connection = session::getConnection();
    const auto rows = connection->getTarnClientInfo();
    const auto policy = std::find_if(rows.begin(), rows.end(), tellsPolicy);
    if (policy != rows.end())
        session::g_isCentrallyManaged = policy->value == kYes;
    session::g_is2FAEnabled = session::required(connection->getTFAManager())->is2FAEnabled();
}

void SimpleGUIMainWindow::RefreshActivityLogs() {
    if (!session::connectedToAgent())
        return;
    try {
        readActivities();
        updateEnabling();
    } catch (const std::exception& error) {
        endSession(error);
    }
}

void SimpleGUIMainWindow::readActivities() {
    activityLog_.refresh(app::wireTime(ui_->dateTimeFrom->dateTime()),
                         app::wireTime(ui_->dateTimeTo->dateTime()));
    running_.refresh();
}

void SimpleGUIMainWindow::updateEnabling() {
    app::EnableInputs in;
    in.connected = session::connectedToAgent();
    in.activitySelected = ui_->tableCurrentActivities->selectionModel()->hasSelection();
    in.centrallyManaged = session::g_isCentrallyManaged;
    in.twoFactorEnabled = session::g_is2FAEnabled;
    in.setHasBackedUpData = hasBackedUpData_;
    if (const BackupSetViewItem* card = selectedSetItem()) {
        const hessiancln::backup_set_info& set = card->record();
        in.setSelected = true;
        in.setInSync = set.in_sync;
        in.setHasItems = set.has_items;
        in.setCreatedByPolicy = set.is_created_by_policy;
        in.activityRunsOnSet = running_.hasActivityOnSet(set.id);
    }

    const app::EnableState on = app::enableState(in);
    ui_->menu_Backup_Set->setEnabled(on.menuBackupSet);
    ui_->menu_Configuration->setEnabled(on.menuConfiguration);
    ui_->actionAdmin->setEnabled(on.actionAdmin);
    ui_->actionLogout->setEnabled(on.actionLogout);
    ui_->buttonEventLog->setEnabled(on.buttonEventLog);
    ui_->dateTimeFrom->setEnabled(on.dateTimeFrom);
    ui_->dateTimeTo->setEnabled(on.dateTimeTo);
    ui_->actionLogin->setEnabled(on.actionLogin);
    ui_->actionNew_Backup_Set->setEnabled(on.actionNewBackupSet);
    ui_->actionBackup_Now->setEnabled(on.actionBackupNow);
    ui_->actionRestore->setEnabled(on.actionRestore);
    ui_->actionDeleteFromOnline->setEnabled(on.actionDeleteFromOnline);
    ui_->actionSynchronize->setEnabled(on.actionSynchronize);
    ui_->buttonStop->setEnabled(on.buttonStop);
    ui_->pageProperties->setEnabled(on.pageProperties);
    ui_->btnItems->setEnabled(on.btnItems);
    ui_->btnSchedule->setEnabled(on.btnSchedule);
    ui_->btnRetention->setEnabled(on.btnRetention);
    ui_->actionTFASettings->setEnabled(on.actionTFASettings);

    if (!in.connected)
        refreshAll();
}
