// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/computer_tree_item.h"

#include <optional>
#include <utility>

#include "api/data_source_browser.h"
#include "models/name_order.h"
#include "session/text.h"
#include "ui/error_box.h"
#include "ui/wait_cursor.h"

using hessiancln::net_item_info;
using hessiancln::NetItemType;

namespace {

/// Ways to reach a computer, which agents list as networks.
bool isPseudoEntry(const net_item_info& entry) {
    return entry.name == "UNIX-SSH" || entry.name == "NFS";
}

std::vector<std::size_t> shownOrder(const std::vector<net_item_info>& entries) {
    std::vector<models::RankedName> names;
    names.reserve(entries.size());
    for (const net_item_info& entry : entries)
        names.push_back({entry.type == NetItemType::Computer ? 0 : 1, entry.name});
    return models::shownOrder(names);
}

} // namespace

CComputerTreeItem::CComputerTreeItem(boost::shared_ptr<hessiancln::DataSourceBrowser> browser)
    : CComputerTreeItem(std::move(browser), {{}, NetItemType::Container}) {}

CComputerTreeItem::CComputerTreeItem(boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                                     net_item_info info)
    : browser_(std::move(browser))
    , info_(std::move(info)) {}

models::LazyNode::Children CComputerTreeItem::askForChildren() {
    const std::string path = fullPath(*this);
    try {
        return childrenOf(discover(path));
    } catch (const std::exception& error) {
        ui::showError(nullptr, tr("Failed to expand '%1'").arg(session::fromWire(path)),
                      ui::errorText(error));
        return {};
    }
}

std::vector<net_item_info> CComputerTreeItem::discover(const std::string& path) {
    const ui::OverrideCursor busy;
    return browser_->networkDiscovery(path);
}

models::LazyNode::Children CComputerTreeItem::childrenOf(std::vector<net_item_info> entries) const {
    std::erase_if(entries, isPseudoEntry);
    Children children;
    children.reserve(entries.size());
    for (const std::size_t place : shownOrder(entries))
        children.push_back(
            std::make_unique<CComputerTreeItem>(browser_, std::move(entries[place])));
    return children;
}
