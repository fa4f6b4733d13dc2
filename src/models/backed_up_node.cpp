// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/backed_up_node.h"

#include <utility>

#include "api/backup_set_data_view.h"
#include "models/name_order.h"

using hessiancln::SelectableItem;

namespace {

constexpr std::int64_t topLevel = -1;
constexpr hessiancln::SelectableItemType rootType{14};

} // namespace

BackedUpNode::BackedUpNode(View view)
    : view_(std::move(view))
    , item_{topLevel, "<ROOT>", rootType, false, false} {}

BackedUpNode::BackedUpNode(const BackedUpNode& parent, SelectableItem item)
    : view_(parent.view_)
    , item_(std::move(item)) {
    if (parent.checkState() == models::CheckState::Checked)
        setCheckState(models::CheckState::Checked);
}

models::LazyNode::Children BackedUpNode::askForChildren() {
    auto items = view_->getSubItems(item_.id);
    std::vector<models::RankedName> names;
    names.reserve(items.size());
    for (const SelectableItem& item : items)
        names.push_back({item.name == "." ? 0 : 1, item.name});
    Children children;
    children.reserve(items.size());
    for (const std::size_t place : models::shownOrder(names))
        children.push_back(std::make_unique<BackedUpNode>(*this, std::move(items[place])));
    return children;
}
