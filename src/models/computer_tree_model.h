// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

#include "models/lazy_tree_model.h"

namespace hessiancln {
class DataSourceBrowser;
}

/// The network, for selecting a computer. A container has no rows until it is fetched; views do so
/// with `fetchMore`. A failure is reported in a box. The constructor sends no requests.
class CComputerTreeModel : public models::LazyTreeModel {
    Q_OBJECT
public:
    explicit CComputerTreeModel(boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                                QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// False for a container and for an invalid index.
    bool isComputer(const QModelIndex& index) const;

protected:
    void load(models::LazyNode& node) const override;
};
