// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/backup_set_list.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTableView>

#include "api/client_connection.h"
#include "session/connection.h"

namespace app {

namespace {

constexpr std::int32_t noSet = -1;

bool holdsOtherThanFiles(const hessiancln::backup_set_info& set) {
    return set.data_type != hessiancln::BackupDataType::FileSystem;
}

} // namespace

std::vector<hessiancln::backup_set_info> BackupSetList::setsOfAgent() {
    return session::getConnection()->backup_sets_info();
}

BackupSetList::BackupSetList(QTableView& view, Source source, BackupSetViewItem::Rename rename)
    : view_(view)
    , source_(std::move(source))
    , rename_(std::move(rename))
    , pendingId_(noSet) {
    view_.setModel(&rows_);
    connect(view_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &BackupSetList::followSelection);
    view_.installEventFilter(this);
}

bool BackupSetList::rebuild() {
    if (const BackupSetViewItem* card = selectedCard(); card && card->editingName())
        return false;
    known_ = false;
    auto sets = source_();
    known_ = true;
    std::erase_if(sets, holdsOtherThanFiles);
    std::int32_t idToSelect = selectedId();
    const QScopedValueRollback<bool> rebuilding(rebuilding_, true);
    const int count = static_cast<int>(sets.size());
    setCount(count);
    for (int row = 0; row < count; ++row) {
        const auto& set = sets[static_cast<std::size_t>(row)];
        cardAt(row)->setRecord(set);
        if (pendingId_ == set.id) {
            idToSelect = set.id;
            pendingId_ = noSet;
        }
        if (idToSelect == set.id)
            select(row);
    }
    return true;
}

std::vector<hessiancln::backup_set_info> BackupSetList::records() const {
    std::vector<hessiancln::backup_set_info> records;
    records.reserve(static_cast<std::size_t>(count()));
    for (int row = 0; row < count(); ++row)
        records.push_back(cardAt(row)->record());
    return records;
}

bool BackupSetList::selectSet(std::int32_t setId) {
    for (int row = 0; row < count(); ++row)
        if (cardAt(row)->record().id == setId) {
            select(row);
            return true;
        }
    return false;
}

void BackupSetList::clear() {
    abandonEditing();
    view_.clearSelection();
    setCount(0);
    known_ = false;
}

void BackupSetList::setCount(int count) {
    const int before = rows_.rowCount();
    for (int row = count; row < before; ++row)
        cardAt(row)->abandonEditing();
    if (count < before)
        rows_.removeRows(count, before - count);
    else if (count > before)
        rows_.insertRows(before, count - before);
    for (int row = before; row < count; ++row)
        addCard(row);
}

void BackupSetList::addCard(int row) {
    auto* card = new BackupSetViewItem(&view_, rename_);
    view_.setIndexWidget(rows_.index(row), card);
    connect(card, &BackupSetViewItem::contextMenuNeedsDisplay, this,
            &BackupSetList::contextMenuNeedsDisplay);
}

BackupSetViewItem* BackupSetList::cardAt(int row) const {
    return qobject_cast<BackupSetViewItem*>(view_.indexWidget(rows_.index(row)));
}

BackupSetViewItem* BackupSetList::selectedCard() const {
    const QModelIndexList rows = view_.selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : cardAt(rows.first().row());
}

std::int32_t BackupSetList::selectedId() const {
    const BackupSetViewItem* card = selectedCard();
    return card ? card->record().id : noSet;
}

void BackupSetList::select(int row) {
    const QModelIndex index = rows_.index(row);
    cardAt(row)->setSelected(true);
    view_.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
    view_.scrollTo(index);
}

bool BackupSetList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && keyPressed(static_cast<QKeyEvent&>(*event)))
        return true;
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        if (BackupSetViewItem* card = selectedCard())
            showContextMenu(*card);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool BackupSetList::keyPressed(const QKeyEvent& key) {
    BackupSetViewItem* card = selectedCard();
    if (!card)
        return false;
    if (key.key() == Qt::Key_F2) {
        card->startEditingSetName();
        return true;
    }
    // Not every platform makes a context menu event of it.
    if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) {
        showContextMenu(*card);
        return true;
    }
    return false;
}

void BackupSetList::showContextMenu(BackupSetViewItem& card) {
    // The platform may send the event and the key.
    if (QApplication::activePopupWidget())
        return;
    const QPoint place = card.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, card.mapToGlobal(place));
    emit contextMenuNeedsDisplay(&card, &event);
}

void BackupSetList::abandonEditing() {
    for (int row = 0; row < rows_.rowCount(); ++row)
        cardAt(row)->abandonEditing();
}

void BackupSetList::mark(const QItemSelection& rows, bool selected) {
    for (const QModelIndex& index : rows.indexes())
        if (BackupSetViewItem* card = cardAt(index.row()))
            card->setSelected(selected);
}

void BackupSetList::followSelection(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
    mark(deselected, false);
    mark(selected, true);
    if (!rebuilding_)
        emit selectionChanged(selected, deselected);
}

} // namespace app
