// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QCoreApplication>

#include <boost/shared_ptr.hpp>

#include "api/browser_records.h"
#include "models/lazy_node.h"

namespace hessiancln {
class DataSourceBrowser;
}

/// A computer, or a container of computers, in the network.
class CComputerTreeItem : public models::LazyNode {
    Q_DECLARE_TR_FUNCTIONS(CComputerTreeItem)
public:
    /// The root.
    explicit CComputerTreeItem(boost::shared_ptr<hessiancln::DataSourceBrowser> browser);
    CComputerTreeItem(boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                      hessiancln::net_item_info info);

    const std::string& name() const override { return info_.name; }
    bool isLeaf() const override { return info_.type == hessiancln::NetItemType::Computer; }

private:
    /// Shows a message box if the request fails.
    Children askForChildren() override;
    std::vector<hessiancln::net_item_info> discover(const std::string& path);
    Children childrenOf(std::vector<hessiancln::net_item_info> entries) const;

    boost::shared_ptr<hessiancln::DataSourceBrowser> browser_;
    hessiancln::net_item_info info_;
};
