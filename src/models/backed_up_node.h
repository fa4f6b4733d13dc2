// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

#include "api/data_view_records.h"
#include "models/checkable_node.h"

namespace hessiancln {
class BackupSetDataView;
}

/// A drive, folder or file in a backup set, to be selected for a restore or a deletion.
class BackedUpNode : public models::CheckableNode {
public:
    using View = boost::shared_ptr<hessiancln::BackupSetDataView>;

    /// The hidden root of a view.
    explicit BackedUpNode(View view);
    /// A node to be added below `parent`, checked if the parent is.
    BackedUpNode(const BackedUpNode& parent, hessiancln::SelectableItem item);

    const std::string& name() const override { return item_.name; }
    bool isLeaf() const override { return item_.is_file; }

    const hessiancln::SelectableItem& item() const { return item_; }
    /// Whether the agent accepts the item's id. Items without one are only containers.
    bool hasId() const { return item_.id > 0; }

private:
    /// Throws what the call throws.
    Children askForChildren() override;

    View view_;
    hessiancln::SelectableItem item_;
};
