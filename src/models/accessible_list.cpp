// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/accessible_list.h"

#include <map>
#include <utility>

#include <QAccessibleWidget>
#include <QListView>
#include <QPersistentModelIndex>
#include <QPointer>

#include "models/small_list_view.h"

namespace models {

namespace {

using Interface = QAccessibleInterface;

/// A row of a list. Invalid once the row is removed.
class Row final : public QAccessibleInterface,
                  public QAccessibleTableCellInterface,
                  public QAccessibleActionInterface {
public:
    Row(QListView& view, const QModelIndex& index)
        : view_(&view)
        , index_(index) {}

    const QPersistentModelIndex& index() const { return index_; }

    bool isValid() const override { return view_ && index_.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return list()->window(); }
    Interface* parent() const override { return list(); }
    Interface* child(int) const override { return nullptr; }
    Interface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const Interface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override {
        return isValid() && view_->selectionModel()->isSelected(index_);
    }
    QList<Interface*> columnHeaderCells() const override { return {}; }
    QList<Interface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return 0; }
    int rowIndex() const override { return index_.row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    Interface* table() const override { return list(); }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    Interface* list() const { return QAccessible::queryAccessibleInterface(view_); }
    QVariant checkState() const { return index_.data(Qt::CheckStateRole); }

    QPointer<QListView> view_;
    QPersistentModelIndex index_;
};

QString Row::text(QAccessible::Text kind) const {
    if (!isValid())
        return {};
    if (kind == QAccessible::Description)
        return index_.data(Qt::AccessibleDescriptionRole).toString();
    if (kind != QAccessible::Name)
        return {};
    const QString spoken = index_.data(Qt::AccessibleTextRole).toString();
    return spoken.isEmpty() ? index_.data().toString() : spoken;
}

QRect Row::rect() const {
    if (!isValid())
        return {};
    const QRect place = view_->visualRect(index_);
    return {view_->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State Row::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const QWidget& viewport = *view_->viewport();
    const QRect seen(viewport.mapToGlobal({0, 0}), viewport.size());
    state.offscreen = !seen.intersects(rect());
    state.invisible = state.offscreen;
    const Qt::ItemFlags flags = index_.flags();
    state.disabled = !flags.testFlag(Qt::ItemIsEnabled);
    state.selectable = flags.testFlag(Qt::ItemIsSelectable);
    state.focusable = state.selectable;
    state.selected = isSelected();
    state.focused = view_->currentIndex() == index_;
    state.checkable = checkState().isValid();
    state.checked = checkState().toInt() == Qt::Checked;
    state.checkStateMixed = checkState().toInt() == Qt::PartiallyChecked;
    return state;
}

void* Row::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QStringList Row::actionNames() const {
    return isValid() && checkState().isValid() ? QStringList(toggleAction()) : QStringList();
}

void Row::doAction(const QString& name) {
    if (name != toggleAction() || actionNames().isEmpty())
        return;
    const bool isChecked = checkState().toInt() == Qt::Checked;
    view_->model()->setData(index_, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

/// A list, whose children are its rows. The interface of a row is created on the first request.
class List final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit List(QListView& view)
        : QAccessibleWidget(&view, QAccessible::List)
        , view_(view) {}
    List(const List&) = delete;
    List& operator=(const List&) = delete;
    ~List() override { forgetRows(); }

    int childCount() const override { return rowCount(); }
    Interface* child(int row) const override;
    int indexOfChild(const Interface* child) const override;
    Interface* childAt(int x, int y) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    Interface* caption() const override { return nullptr; }
    Interface* summary() const override { return nullptr; }
    Interface* cellAt(int row, int column) const override {
        return column == 0 ? child(row) : nullptr;
    }
    int rowCount() const override {
        return view_.model() ? view_.model()->rowCount(view_.rootIndex()) : 0;
    }
    int columnCount() const override { return view_.model() ? 1 : 0; }
    QString rowDescription(int) const override { return {}; }
    QString columnDescription(int) const override { return {}; }

    int selectedCellCount() const override { return selectedRows().size(); }
    QList<Interface*> selectedCells() const override;
    int selectedRowCount() const override { return selectedRows().size(); }
    QList<int> selectedRows() const override;
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    bool isColumnSelected(int) const override { return false; }
    bool selectRow(int row) override { return select(row, QItemSelectionModel::Select); }
    bool unselectRow(int row) override { return select(row, QItemSelectionModel::Deselect); }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    QModelIndex indexOf(int row) const {
        return view_.model() ? view_.model()->index(row, 0, view_.rootIndex()) : QModelIndex();
    }
    bool select(int row, QItemSelectionModel::SelectionFlag how);
    void forgetRows();

    QListView& view_;
    mutable std::map<int, QAccessible::Id> rows_;
};

Interface* List::child(int row) const {
    const QModelIndex index = indexOf(row);
    if (!index.isValid())
        return nullptr;
    if (const auto known = rows_.find(row); known != rows_.end()) {
        Interface* before = QAccessible::accessibleInterface(known->second);
        if (before && static_cast<Row*>(before)->index() == index)
            return before;
        // Another folder is shown, or rows have moved.
        QAccessible::deleteAccessibleInterface(known->second);
    }
    auto* made = new Row(view_, index); // owned by Qt until it is deleted by its id
    rows_[row] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int List::indexOfChild(const Interface* child) const {
    const auto* row = dynamic_cast<const Row*>(child);
    return row && row->isValid() ? row->rowIndex() : -1;
}

Interface* List::childAt(int x, int y) const {
    const QModelIndex index = view_.indexAt(view_.viewport()->mapFromGlobal({x, y}));
    return index.isValid() ? child(index.row()) : nullptr;
}

void* List::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QList<int> List::selectedRows() const {
    QList<int> rows;
    if (!view_.selectionModel())
        return rows;
    for (const QModelIndex& index : view_.selectionModel()->selectedIndexes())
        if (index.parent() == view_.rootIndex())
            rows << index.row();
    return rows;
}

QList<Interface*> List::selectedCells() const {
    QList<Interface*> cells;
    for (const int row : selectedRows())
        cells << child(row);
    return cells;
}

bool List::select(int row, QItemSelectionModel::SelectionFlag how) {
    const QModelIndex index = indexOf(row);
    if (!index.isValid() || !view_.selectionModel())
        return false;
    const bool isAlone = view_.selectionMode() == QAbstractItemView::SingleSelection &&
                         how == QItemSelectionModel::Select;
    view_.selectionModel()->select(index, isAlone ? QItemSelectionModel::ClearAndSelect : how);
    return true;
}

void List::modelChange(QAccessibleTableModelChangeEvent* event) {
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged)
        forgetRows();
}

void List::forgetRows() {
    for (const auto& [row, id] : std::exchange(rows_, {}))
        QAccessible::deleteAccessibleInterface(id);
}

Interface* interfaceOf(const QString&, QObject* object) {
    auto* view = qobject_cast<CSmallListView*>(object);
    return view ? new List(*view) : nullptr; // owned by Qt
}

} // namespace

void announceShownRows() {
    QAccessible::installFactory(interfaceOf);
}

} // namespace models
