// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <QItemSelection>
#include <QObject>

#include "app/backup_set_rows.h"
#include "app/backup_set_view_item.h"

class QKeyEvent;
class QTableView;

namespace app {

/// The cards of the agent's file sets in a table view: a row each, in the agent's order. Sets of
/// anything else aren't listed. A row gets its card when it comes near the visible part of the
/// view, and keeps it from one rebuild to the next; the selection stays with its set. F2 renames
/// the selected set; the menu key and Shift+F10 request its context menu.
class BackupSetList : public QObject {
    Q_OBJECT
public:
    /// Returns the agent's sets; an exception leaves the list unchanged.
    using Source = std::function<std::vector<hessiancln::backup_set_info>()>;
    static std::vector<hessiancln::backup_set_info> setsOfAgent();

    /// Sets the list's model on `view`, which must outlive the list.
    explicit BackupSetList(QTableView& view, Source source = setsOfAgent,
                           BackupSetViewItem::Rename rename = BackupSetViewItem::renameOnAgent);

    /// Shows the current sets of the source. Returns false, and leaves the list unchanged, if the
    /// selected set is being renamed.
    bool rebuild();
    void clear();
    int count() const { return rows_.rowCount(); }
    /// Whether the agent has no sets, as opposed to a list that couldn't be read.
    bool isKnownToBeEmpty() const { return known_ && count() == 0; }
    /// The records shown by the cards, in their order.
    std::vector<hessiancln::backup_set_info> records() const;

    /// The card of the first selected row, or null. The next rebuild may delete it.
    BackupSetViewItem* selectedCard() const;
    /// Selects the set with this id. Returns false if it isn't listed, or no longer is after the
    /// listeners.
    bool selectSet(std::int32_t setId);
    /// Selects the set with this id as soon as a rebuild finds it.
    void selectOnceListed(std::int32_t setId) { pendingId_ = setId; }

    /// Discards the text typed into a card's name.
    void abandonEditing();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user changed the selection. Not emitted for changes made by a rebuild.
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
    void contextMenuNeedsDisplay(BackupSetViewItem* source, QContextMenuEvent* event);

private:
    bool keyPressed(const QKeyEvent& key);
    void showContextMenu(BackupSetViewItem& card);
    void show(std::vector<hessiancln::backup_set_info> sets);
    /// Creates the missing cards in and around the visible part of the view.
    void addCardsNearView();
    /// Creates the card if the row has none yet.
    BackupSetViewItem& needCard(int row);
    BackupSetViewItem* cardAt(int row) const; ///< null if the row has none yet
    int selectedRow() const;                  ///< -1 if none is selected
    std::int32_t selectedId() const;
    void select(int row);
    void mark(const QItemSelection& rows, bool selected);
    void followSelection(const QItemSelection& selected, const QItemSelection& deselected);

    QTableView& view_;
    Source source_;
    BackupSetViewItem::Rename rename_;
    BackupSetRows rows_;
    std::int32_t pendingId_;
    bool known_ = false; ///< whether the agent's sets are known
    bool rebuilding_ = false;
};

} // namespace app
