// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's slots that act on sets.
#include <algorithm>
#include <stdexcept>

#include <QContextMenuEvent>
#include <QDateTime>
#include <QMenu>

#include "app/activity_commands.h"
#include "app/activity_tables.h"
#include "app/backup_set_list.h"
#include "app/insight_windows.h"
#include "app/open_backup_set.h"
#include "app/simple_gui_main_window.h"
#include "insight/restore_summary_box.h"
#include "session/connection.h"
#include "session/process_values.h"
#include "session/text.h"
#include "ui/error_box.h"
#include "ui/later.h"
#include "ui/locale_text.h"
#include "ui_simple_gui_main_window.h"
#include "wizards/delete_flow.h"
#include "wizards/items_flow.h"
#include "wizards/new_set_flow.h"
#include "wizards/restore_flow.h"
#include "wizards/retention_flow.h"
#include "wizards/schedule_flow.h"

namespace {

/// The Delete key works even while the command is disabled.
bool refusesDeletion(const BackupSetViewItem* card) {
    return card && session::g_isCentrallyManaged && card->record().is_created_by_policy;
}

/// How an activity on a set is announced: `status` gets the time and the name of the set.
QString startedText(const QString& status, const hessiancln::backup_set_info& set) {
    return status.arg(ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::LongFormat),
                      session::fromWire(set.name));
}

auto restoreFrom(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set) {
    return wizards::restoreFromSet(parent, set, insight::addRestoreSummary);
}

auto restoreOf(const wizards::RestoreFile& file) {
    return [file](QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set) {
        return wizards::restoreFromSet(parent, set, insight::addRestoreSummary, file);
    };
}

/// The record of a set to restore from. Throws the reason if it can't be done now: other windows
/// don't disable the command.
hessiancln::backup_set_info restorableSet(std::int32_t id, const app::BackupSetList& list,
                                          const app::ActivityTables& activities) {
    // The list is empty without a session, which is the reason to name.
    session::getConnection();
    const auto sets = list.records();
    const auto set = std::ranges::find(sets, id, &hessiancln::backup_set_info::id);
    if (set == sets.end())
        throw std::runtime_error(
            session::toWire(SimpleGUIMainWindow::tr("The backup set no longer exists.")));
    if (activities.running().hasActivityOnSet(id))
        throw std::runtime_error(
            session::toWire(SimpleGUIMainWindow::tr("An activity is running on the backup set.")));
    if (!set->in_sync)
        throw std::runtime_error(session::toWire(SimpleGUIMainWindow::tr(
            "The backup set isn't in sync. Synchronize it, then try again.")));
    return *set;
}

void editItems(QWidget& parent, const hessiancln::backup_set_info& set) {
    const wizards::SetFeatures features = wizards::readSetFeatures();
    wizards::editItems(parent, features, app::openBackupSet(set.id), set.has_items);
}

} // namespace

BackupSetViewItem* SimpleGUIMainWindow::selectedSetItem() const {
    return sets_->selectedCard();
}

void SimpleGUIMainWindow::selectSetOnceListed(std::int32_t setId) {
    sets_->selectOnceListed(setId);
}

void SimpleGUIMainWindow::commandSelectedSet(const QString& errorTitle, ui::Cursor cursor,
                                             const SetCommand& command) {
    const BackupSetViewItem* card = selectedSetItem();
    if (!card) {
        ui::showError(this, tr("Error"), tr("No backup set selected."));
        return;
    }
    // A copy: the card may be deleted while a wizard is open.
    const hessiancln::backup_set_info set = card->record();
    ui::remoteAction(*this, errorTitle, cursor, [&] { command(set); });
}

void SimpleGUIMainWindow::startOnSelectedSet(StartOnSet* begin, ui::Cursor cursor,
                                             const QString& status) {
    commandSelectedSet(tr("Error"), cursor, [this, begin, &status](const auto& set) {
        // Holds the activity's object until the status is shown.
        const auto activity = begin(set.id);
        RefreshActivityLogs();
        showStarted(startedText(status, set));
    });
}

void SimpleGUIMainWindow::runOnSelectedSet(const Wizard& wizard, const QString& status) {
    commandSelectedSet(tr("Error"), ui::Cursor::arrow, [this, &wizard, &status](const auto& set) {
        runOnSet(wizard, set, status);
    });
}

void SimpleGUIMainWindow::runOnSet(const Wizard& wizard, const hessiancln::backup_set_info& set,
                                   const QString& status) {
    const Started activity = wizard(*this, app::openBackupSet(set.id));
    if (!activity)
        return;
    refreshAll();
    // Without an activity the wizard ended with nothing to do. A failure of the refresh takes
    // precedence.
    if (*activity && refreshFailure_.isEmpty())
        showStarted(startedText(status, set));
}

std::int32_t SimpleGUIMainWindow::editSelectedSet(EditSet* edit) {
    std::int32_t id = -1;
    commandSelectedSet(tr("Error"), ui::Cursor::arrow, [this, edit, &id](const auto& set) {
        id = set.id;
        if (edit(*this, app::openBackupSet(set.id)))
            showSetDetails();
    });
    return id;
}

void SimpleGUIMainWindow::createBackupSet() {
    const auto set = wizards::createBackupSet(*this);
    if (!set)
        return;
    selectSetOnceListed(set->id);
    showStatus(
        tr("%1: Backup set '%2' created")
            .arg(ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::LongFormat), set->name));
}

void SimpleGUIMainWindow::OnNewBackupSet() {
    ui::remoteAction(*this, tr("New Backup Set Error"), ui::Cursor::arrow,
                     [this] { createBackupSet(); });
}

void SimpleGUIMainWindow::OnBackupNow() {
    startOnSelectedSet(app::startBackup, ui::Cursor::wait,
                       tr("%1: On-demand backup started for '%2'"));
}

void SimpleGUIMainWindow::OnSync() {
    startOnSelectedSet(app::startSync, ui::Cursor::arrow,
                       tr("%1: On-demand Synchronization started for '%2'"));
}

void SimpleGUIMainWindow::OnRestore() {
    runOnSelectedSet(restoreFrom, tr("%1: Restore started for '%2'"));
}

void SimpleGUIMainWindow::restoreFile(std::int32_t setId, const wizards::RestoreFile& file) {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [&] {
        runOnSet(restoreOf(file), restorableSet(setId, *sets_, *activities_),
                 tr("%1: Restore started for '%2'"));
    });
}

void SimpleGUIMainWindow::backUpSet(std::int32_t setId) {
    if (sets_->selectSet(setId))
        OnBackupNow();
}

void SimpleGUIMainWindow::syncSet(std::int32_t setId) {
    if (sets_->selectSet(setId))
        OnSync();
}

void SimpleGUIMainWindow::OnDelete() {
    if (!refusesDeletion(selectedSetItem()))
        runOnSelectedSet(wizards::deleteFromSet, tr("%1: Deletion started for '%2'"));
}

void SimpleGUIMainWindow::on_btnItems_clicked() {
    commandSelectedSet(tr("Editing Backup Set Items Error"), ui::Cursor::arrow,
                       [this](const auto& set) { editItems(*this, set); });
}

void SimpleGUIMainWindow::on_btnRetention_clicked() {
    editSelectedSet(wizards::editRetention);
}

void SimpleGUIMainWindow::on_btnSchedule_clicked() {
    insight_->scheduleChanged(editSelectedSet(wizards::editSchedule));
}

void SimpleGUIMainWindow::OnBackupSetSelectionChanged(const QItemSelection&,
                                                      const QItemSelection&) {
    // A screen reader can select a row during a wait.
    if (ui::waitsForCall(*this, [this] { OnBackupSetSelectionChanged({}, {}); }))
        return;
    showSetDetails();
    updateEnabling();
}

void SimpleGUIMainWindow::backupSetContextMenu(BackupSetViewItem*, QContextMenuEvent* event) {
    // Not run in a loop of its own: a heartbeat may take away the card that asked for it.
    setMenu_->popup(event->globalPos());
}
