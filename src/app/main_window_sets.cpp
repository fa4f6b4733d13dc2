// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's list of backup sets, and the details beside it.
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>

#include "api/client_connection.h"
#include "app/backup_set_view_item.h"
#include "app/open_backup_set.h"
#include "app/set_details_text.h"
#include "app/simple_gui_main_window.h"
#include "session/connection.h"
#include "ui/error_box.h"
#include "ui/remote_action.h"
#include "ui_simple_gui_main_window.h"

namespace {

constexpr int kNoSet = -1;

bool holdsOtherThanFiles(const hessiancln::backup_set_info& set) {
    return set.data_type != hessiancln::BackupDataType::FileSystem;
}

} // namespace

void SimpleGUIMainWindow::refreshBackupSets() {
    const BackupSetViewItem* selected = selectedSetItem();
    if (selected && selected->editingName())
        return;
    auto sets = session::getConnection()->backup_sets_info();
    std::erase_if(sets, holdsOtherThanFiles);
    const bool anySelected = selected != nullptr;
    std::int32_t idToSelect = selected ? selected->record().id : kNoSet;
    {
        const QScopedValueRollback<bool> rebuilding(rebuildingSets_, true);
        const int count = static_cast<int>(sets.size());
        setCardCount(count);
        for (int row = 0; row < count; ++row) {
            const auto& set = sets[static_cast<std::size_t>(row)];
            cardAt(row)->setRecord(set);
            if (pendingSelectSetId_ == set.id) {
                idToSelect = set.id;
                pendingSelectSetId_ = kNoSet;
            }
            if (idToSelect == set.id)
                selectCard(row);
        }
    }
    // Last, when all rows are what they will be: an error box lets the next heartbeat in.
    if (anySelected || selectedSetItem())
        showSetDetails();
    updateEnabling();
}

void SimpleGUIMainWindow::clearSets() {
    abandonEditing();
    ui_->backupSetsView->clearSelection();
    setCardCount(0);
}

void SimpleGUIMainWindow::setCardCount(int count) {
    const int before = setRows_.rowCount();
    for (int row = count; row < before; ++row)
        cardAt(row)->abandonEditing();
    if (count < before)
        setRows_.removeRows(count, before - count);
    else if (count > before)
        setRows_.insertRows(before, count - before);
    for (int row = before; row < count; ++row) {
        auto* card = new BackupSetViewItem(ui_->backupSetsView);
        ui_->backupSetsView->setIndexWidget(setRows_.index(row), card);
        connect(card, &BackupSetViewItem::contextMenuNeedsDisplay, this,
                &SimpleGUIMainWindow::backupSetContextMenu);
    }
}

BackupSetViewItem* SimpleGUIMainWindow::cardAt(int row) const {
    return qobject_cast<BackupSetViewItem*>(ui_->backupSetsView->indexWidget(setRows_.index(row)));
}

BackupSetViewItem* SimpleGUIMainWindow::selectedSetItem() const {
    const QModelIndexList rows = ui_->backupSetsView->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : cardAt(rows.first().row());
}

BackupSetViewItem* SimpleGUIMainWindow::requireSetItem() {
    BackupSetViewItem* card = selectedSetItem();
    if (!card)
        ui::showError(this, tr("Error"), tr("No backup set selected."));
    return card;
}

void SimpleGUIMainWindow::selectCard(int row) {
    const QModelIndex index = setRows_.index(row);
    cardAt(row)->setSelected(true);
    ui_->backupSetsView->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ui_->backupSetsView->scrollTo(index);
}

void SimpleGUIMainWindow::abandonEditing() {
    for (int row = 0; row < setRows_.rowCount(); ++row)
        cardAt(row)->abandonEditing();
}

void SimpleGUIMainWindow::OnBackupSetSelectionChanged(const QItemSelection& selected,
                                                      const QItemSelection& deselected) {
    const auto mark = [this](const QItemSelection& rows, bool on) {
        for (const QModelIndex& index : rows.indexes())
            if (BackupSetViewItem* card = cardAt(index.row()))
                card->setSelected(on);
    };
    mark(deselected, false);
    mark(selected, true);
    // A rebuild reads the details once, at its end.
    if (rebuildingSets_)
        return;
    showSetDetails();
    updateEnabling();
}

void SimpleGUIMainWindow::backupSetContextMenu(BackupSetViewItem*, QContextMenuEvent* event) {
    // Not run in a loop of its own: a heartbeat may take away the card that asked for it.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(ui_->actionBackup_Now);
    menu->addAction(ui_->actionRestore);
    menu->addAction(ui_->actionDeleteFromOnline);
    menu->addSeparator();
    menu->addAction(ui_->actionSynchronize);
    menu->popup(event->globalPos());
}

void SimpleGUIMainWindow::showSetDetails() {
    const BackupSetViewItem* card = selectedSetItem();
    // As rows go one by one with their session, the view may select another one for a moment.
    if (!card || !session::connectedToAgent()) {
        fillDetails({});
        return;
    }
    // While a box tells of a failure, each heartbeat would pile another one on top of it.
    if (readingDetails_)
        return;
    const QScopedValueRollback<bool> reading(readingDetails_, true);
    const std::int32_t id = card->record().id;
    ui::remoteAction(
        *this, tr("Error checking backup set properties"), ui::Cursor::arrow, [this, id] {
            const auto set = app::openBackupSet(id);
            const auto last = set->getLastActivityOfType(hessiancln::ActivityType::Backup);
            const auto overview = set->getOverview();
            fillDetails(app::setDetails(last, overview));
            hasBackedUpData_ = overview.status.on_line_file_count > 0;
        });
}

void SimpleGUIMainWindow::fillDetails(const app::SetDetails& details) {
    ui_->valLastBackup->setText(details.valLastBackup);
    ui_->valFileGens->setText(details.valFileGens);
    ui_->valSize->setText(details.valSize);
    ui_->valItems->setText(details.valItems);
    ui_->valSchedule->setText(details.valSchedule);
    ui_->valRetention->setText(details.valRetention);
}
