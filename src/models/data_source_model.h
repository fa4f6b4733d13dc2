// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "models/lazy_tree_model.h"
#include "models/path_selection.h"

class CDataSourceItem;

namespace hessiancln {
class DataSourceBrowser;
}
namespace models {
class CheckableNode;
}

/// Is notified of changes in a tree of `CDataSourceItem`.
class IDataBrowserSupport {
public:
    virtual ~IDataBrowserSupport() = default;

    /// The check state of the item was set.
    virtual void checkStateChanged(CDataSourceItem& item) = 0;
};

/// The drives, folders and files of a computer, with check boxes that select the items of a backup
/// set. A folder is fetched on the first access to its rows; an unreadable folder has a sign and no
/// rows. Checking and collecting fetch nothing. The constructor sends no requests.
class CDataSourceModel : public models::LazyTreeModel, public IDataBrowserSupport {
    Q_OBJECT
public:
    /// `computer` is a full source name in UTF-8.
    CDataSourceModel(std::string computer, boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                     QObject* parent = nullptr);

    /// The check state is that of `models::CheckState`. Items below an excluded one have none.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Only for the check state: any value that converts to true checks.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// The selection from the top down: an inclusion for each topmost checked item, followed by the
    /// exclusions below it.
    std::vector<models::PathItem> getSelection() const;
    /// Marks the item at a path, ignoring case. Fetches the folders on the path. Returns whether
    /// the path was found; if not, nothing was marked.
    bool markItem(const models::PathItem& item);
    bool hasSelection() const;
    /// Also true for an invalid index, which represents the computer.
    bool isDirectory(const QModelIndex& index) const;

    void checkStateChanged(CDataSourceItem& item) override;

signals:
    /// Emitted once for each item whose check state was set.
    void itemSelectionChanged();

private:
    /// Returns the root for an invalid index.
    CDataSourceItem& itemAt(const QModelIndex& index) const;
    std::function<void(models::CheckableNode&)> listener();
};
