// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

#include "api/data_view_records.h"
#include "models/checkable_node.h"

namespace hessiancln {
class BackupSetDataView;
}

/// A drive, folder or file that a backup set holds, to be chosen for a restore or a deletion.
class BackedUpNode : public models::CheckableNode {
public:
    using View = boost::shared_ptr<hessiancln::BackupSetDataView>;

    /// The root of a view, which nobody sees.
    explicit BackedUpNode(View view);
    /// A node that goes below `parent`, and is checked if that one is.
    BackedUpNode(const BackedUpNode& parent, hessiancln::SelectableItem item);

    const std::string& name() const override { return item_.name; }
    bool isLeaf() const override { return item_.is_file; }

    const hessiancln::SelectableItem& item() const { return item_; }
    /// The agent can be told of the item by its id. Others only hold such items.
    bool hasId() const { return item_.id > 0; }

private:
    /// Raises what the call raises.
    Children askForChildren() override;

    View view_;
    hessiancln::SelectableItem item_;
};
