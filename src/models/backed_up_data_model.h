// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <exception>
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

/// Is notified of changes in a tree of `BackedUpNode`.
class IBackupDataViewSupport {
public:
    virtual ~IBackupDataViewSupport() = default;

    /// The check state of the node was set.
    virtual void checkStateChanged(BackedUpNode& node) = 0;
};

/// The content of a backup set in one view of the agent, with check boxes that build the list for a
/// restore or a deletion. A folder is fetched on the first access to its rows. Checking fetches
/// nothing. The constructor sends no requests.
class CBackedUpDataModel : public models::LazyTreeModel, public IBackupDataViewSupport {
    Q_OBJECT
public:
    explicit CBackedUpDataModel(boost::shared_ptr<hessiancln::BackupSetDataView> view,
                                QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Only for the check state: any value that converts to true checks.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Fetches the top level now, and throws what the call throws. Any later failure occurs while a
    /// view is working and can't handle an exception, so `fetchFailed` reports it.
    void fetchTopLevel();

    /// Throws what the latest failed fetch of a folder threw; does nothing if all succeeded.
    void rethrowFailure() const;

    bool hasSelection() const;
    bool allSelected() const;
    /// The ids to send to the agent; see `models::selectedIds`.
    std::vector<std::int64_t> selectedIds() const;
    /// Returns the root for an invalid index.
    BackedUpNode& nodeOf(const QModelIndex& index) const;
    /// Also true for an invalid index, which represents the set.
    bool canHaveChildren(const QModelIndex& index) const;

    void checkStateChanged(BackedUpNode& node) override;

signals:
    /// Emitted once for each node whose check state was set.
    void itemSelectionChanged();
    /// A folder couldn't be read and stays empty; emitted from the event loop.
    void fetchFailed(const QString& text);

protected:
    void load(models::LazyNode& node) const override;

private:
    std::function<void(models::CheckableNode&)> listener();

    mutable std::exception_ptr failure_; ///< of the latest failed fetch
};
