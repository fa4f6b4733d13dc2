// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "models/lazy_tree_model.h"

class BackedUpNode;

namespace hessiancln {
class BackupSetDataView;
}
namespace models {
class CheckableNode;
}

/// Hears of changes in a tree of `BackedUpNode`.
class IBackupDataViewSupport {
public:
    virtual ~IBackupDataViewSupport() = default;

    /// The check state of the node was set.
    virtual void checkStateChanged(BackedUpNode& node) = 0;
};

/// What a backup set holds, as one view of the agent tells it, with check boxes of which the list
/// for a restore or a deletion is made. A folder is fetched when somebody looks at its rows.
/// Checking fetches nothing. Nothing is asked for by the constructor.
class CBackedUpDataModel : public models::LazyTreeModel, public IBackupDataViewSupport {
    Q_OBJECT
public:
    explicit CBackedUpDataModel(boost::shared_ptr<hessiancln::BackupSetDataView> view,
                                QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Only for the check state: anything that is true as a bool checks.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Asks for the top level now, and raises what the call raises. At any other time a failure is
    /// met by views at work, which can't bear an exception, and is told by `fetchFailed`.
    void fetchTopLevel();

    bool hasSelection() const;
    bool allSelected() const;
    /// What to send to the agent; see `models::selectedIds`.
    std::vector<std::int64_t> selectedIds() const;
    /// The root for an invalid index.
    BackedUpNode& nodeOf(const QModelIndex& index) const;
    /// Also true for an invalid index, which stands for the set.
    bool canHaveChildren(const QModelIndex& index) const;

    void checkStateChanged(BackedUpNode& node) override;

signals:
    /// Once for each node whose check state was set.
    void itemSelectionChanged();
    /// A folder couldn't be read and stays empty; comes when the event loop is reached again.
    void fetchFailed(const QString& text);

protected:
    void fetch(models::LazyNode& node) const override;

private:
    std::function<void(models::CheckableNode&)> listener();
};
