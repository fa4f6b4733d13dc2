// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/restore_destination_node.h"

#include <utility>

using hessiancln::browse_item_info;

RestoreDestinationNode::RestoreDestinationNode(
    std::shared_ptr<const models::BrowsedComputer> computer)
    : RestoreDestinationNode(std::move(computer), {models::rootType, {}, false, 0}) {}

RestoreDestinationNode::RestoreDestinationNode(
    std::shared_ptr<const models::BrowsedComputer> computer, browse_item_info info)
    : computer_(std::move(computer))
    , info_(std::move(info)) {}

models::LazyNode::Children RestoreDestinationNode::askForChildren() {
    auto listing = models::listFolder(*computer_, *this);
    noAccess_ = listing.noAccess;
    Children children;
    children.reserve(listing.items.size());
    for (browse_item_info& item : listing.items)
        children.push_back(std::make_unique<RestoreDestinationNode>(computer_, std::move(item)));
    return children;
}
