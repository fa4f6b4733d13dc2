// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/backup_set_list.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTableView>

#include "api/client_connection.h"
#include "session/connection.h"

namespace app {

namespace {

constexpr std::int32_t noSet = -1;
constexpr int noRow = -1;
/// Cards created above and below the visible part, so that scrolling finds them ready.
constexpr int rowsNear = 20;

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
    connect(view_.verticalScrollBar(), &QScrollBar::valueChanged, this,
            &BackupSetList::addCardsNearView);
    view_.installEventFilter(this);
    view_.viewport()->installEventFilter(this);
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
    show(std::move(sets));
    for (int row = 0; row < count(); ++row) {
        const std::int32_t id = rows_.set(row).id;
        if (pendingId_ == id) {
            idToSelect = id;
            pendingId_ = noSet;
        }
        if (idToSelect == id)
            select(row);
    }
    return true;
}

std::vector<hessiancln::backup_set_info> BackupSetList::records() const {
    std::vector<hessiancln::backup_set_info> records;
    records.reserve(static_cast<std::size_t>(count()));
    for (int row = 0; row < count(); ++row)
        records.push_back(rows_.set(row));
    return records;
}

bool BackupSetList::selectSet(std::int32_t setId) {
    for (int row = 0; row < count(); ++row)
        if (rows_.set(row).id == setId) {
            select(row);
            break;
        }
    // Listeners may have refreshed the list.
    return selectedId() == setId;
}

void BackupSetList::clear() {
    abandonEditing();
    view_.clearSelection();
    show({});
    pendingId_ = noSet;
    known_ = false;
}

void BackupSetList::show(std::vector<hessiancln::backup_set_info> sets) {
    for (int row = static_cast<int>(sets.size()); row < count(); ++row)
        if (BackupSetViewItem* card = cardAt(row))
            card->abandonEditing();
    rows_.setSets(std::move(sets));
    for (int row = 0; row < count(); ++row)
        if (BackupSetViewItem* card = cardAt(row))
            card->setRecord(rows_.set(row));
    addCardsNearView();
}

void BackupSetList::addCardsNearView() {
    if (count() == 0)
        return;
    // -1 below the last row.
    const int last = view_.rowAt(view_.viewport()->height() - 1);
    const int from = std::max(view_.rowAt(0), 0) - rowsNear;
    const int to = (last < 0 ? count() - 1 : last) + rowsNear;
    for (int row = std::max(from, 0); row <= std::min(to, count() - 1); ++row)
        needCard(row);
}

BackupSetViewItem& BackupSetList::needCard(int row) {
    if (BackupSetViewItem* card = cardAt(row))
        return *card;
    auto* card = new BackupSetViewItem(&view_, rename_);
    card->setRecord(rows_.set(row));
    // The view selects the row of a card that gets the focus, also when the window does.
    card->setFocusProxy(&view_);
    const QModelIndex index = rows_.index(row);
    card->setSelected(view_.selectionModel()->isSelected(index));
    view_.setIndexWidget(index, card);
    connect(card, &BackupSetViewItem::contextMenuNeedsDisplay, this,
            &BackupSetList::contextMenuNeedsDisplay);
    return *card;
}

BackupSetViewItem* BackupSetList::cardAt(int row) const {
    return qobject_cast<BackupSetViewItem*>(view_.indexWidget(rows_.index(row)));
}

int BackupSetList::selectedRow() const {
    const QModelIndexList rows = view_.selectionModel()->selectedRows();
    return rows.isEmpty() ? noRow : rows.first().row();
}

BackupSetViewItem* BackupSetList::selectedCard() const {
    const int row = selectedRow();
    return row == noRow ? nullptr : cardAt(row);
}

std::int32_t BackupSetList::selectedId() const {
    const int row = selectedRow();
    return row == noRow ? noSet : rows_.set(row).id;
}

void BackupSetList::select(int row) {
    const QPersistentModelIndex index = rows_.index(row);
    needCard(row).setSelected(true);
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
    if (watched == view_.viewport() && event->type() == QEvent::Resize)
        addCardsNearView();
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
    // Not every platform turns it into a context menu event.
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
    for (int row = 0; row < count(); ++row)
        if (BackupSetViewItem* card = cardAt(row))
            card->abandonEditing();
}

void BackupSetList::mark(const QItemSelection& rows, bool selected) {
    for (const QModelIndex& index : rows.indexes())
        if (selected)
            needCard(index.row()).setSelected(true);
        else if (BackupSetViewItem* card = cardAt(index.row()))
            card->setSelected(false);
}

void BackupSetList::followSelection(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
    mark(deselected, false);
    mark(selected, true);
    if (!rebuilding_)
        emit selectionChanged(selected, deselected);
}

} // namespace app
