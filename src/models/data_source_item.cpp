// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/data_source_item.h"

#include <utility>

using hessiancln::browse_item_info;

CDataSourceItem::CDataSourceItem(std::shared_ptr<const models::BrowsedComputer> computer)
    : computer_(std::move(computer))
    , info_{models::rootType, {}, false, 0} {}

CDataSourceItem::CDataSourceItem(const CDataSourceItem& parent, browse_item_info info)
    : computer_(parent.computer_)
    , info_(std::move(info)) {
    setCheckState(parent.checkState());
}

models::CheckState CDataSourceItem::stateWithoutMark() const {
    return models::excludedIfSelectedAround(*this);
}

models::LazyNode::Children CDataSourceItem::askForChildren() {
    auto listing = models::listFolder(*computer_, *this);
    noAccess_ = listing.noAccess;
    Children children;
    children.reserve(listing.items.size());
    for (browse_item_info& item : listing.items)
        children.push_back(std::make_unique<CDataSourceItem>(*this, std::move(item)));
    return children;
}
