// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "api/browser_records.h"
#include "models/checkable_node.h"
#include "models/folder_listing.h"

/// A drive, folder or file of a computer, to be selected for a backup set.
class CDataSourceItem : public models::CheckableNode {
public:
    /// The root of a computer's tree.
    explicit CDataSourceItem(std::shared_ptr<const models::BrowsedComputer> computer);
    /// A node to be added below `parent`, whose state it inherits.
    CDataSourceItem(const CDataSourceItem& parent, hessiancln::browse_item_info info);

    const std::string& name() const override { return info_.name; }
    bool isLeaf() const override { return info_.isfile; }
    /// Items removed from a selected folder are excluded; drives never are.
    models::CheckState stateWithoutMark() const override;

    const hessiancln::browse_item_info& info() const { return info_; }
    /// Whether the agent failed to list it.
    bool noAccess() const { return noAccess_; }

private:
    Children askForChildren() override;

    std::shared_ptr<const models::BrowsedComputer> computer_;
    hessiancln::browse_item_info info_;
    bool noAccess_ = false;
};
