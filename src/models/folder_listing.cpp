// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/folder_listing.h"

#include <exception>
#include <utility>

#include "api/data_source_browser.h"
#include "models/lazy_node.h"
#include "models/name_order.h"
#include "ui/wait_cursor.h"

namespace models {

namespace {

using hessiancln::browse_item_info;

std::vector<browse_item_info> sorted(std::vector<browse_item_info> items) {
    std::vector<RankedName> names;
    names.reserve(items.size());
    for (const browse_item_info& item : items)
        names.push_back({item.name == "." ? 0 : 1, item.name});
    std::vector<browse_item_info> ordered;
    ordered.reserve(items.size());
    for (const std::size_t place : shownOrder(names))
        ordered.push_back(std::move(items[place]));
    return ordered;
}

} // namespace

FolderListing listFolder(const BrowsedComputer& computer, const LazyNode& node) {
    const ui::OverrideCursor busy;
    try {
        return {sorted(computer.browser->getSubItems(computer.name, fullPath(node))), false};
    } catch (const std::exception&) {
        return {{}, true};
    }
}

} // namespace models
