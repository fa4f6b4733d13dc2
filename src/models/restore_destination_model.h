// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <boost/shared_ptr.hpp>

#include "models/lazy_tree_model.h"

namespace hessiancln {
class DataSourceBrowser;
}

/// The drives, folders and files of a computer, in which the place for restored data is picked. A
/// folder is fetched when somebody looks at its rows; one that can't be read has a sign and no
/// rows. Nothing is asked for by the constructor.
class CRestoreDestinationModel : public models::LazyTreeModel {
    Q_OBJECT
public:
    /// `computer` is UTF-8.
    CRestoreDestinationModel(std::string computer,
                             boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                             QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Also true for an invalid index, which stands for the computer.
    bool isDirectory(const QModelIndex& index) const;
};
