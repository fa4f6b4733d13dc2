// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <boost/shared_ptr.hpp>

#include "models/lazy_tree_model.h"

namespace hessiancln {
class DataSourceBrowser;
}

/// The drives, folders and files of a computer, for selecting the destination of restored data. A
/// folder is fetched on the first access to its rows; an unreadable folder has a sign and no rows.
/// The constructor sends no requests.
class CRestoreDestinationModel : public models::LazyTreeModel {
    Q_OBJECT
public:
    /// `computer` is UTF-8.
    CRestoreDestinationModel(std::string computer,
                             boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                             QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Also true for an invalid index, which represents the computer.
    bool isDirectory(const QModelIndex& index) const;
};
