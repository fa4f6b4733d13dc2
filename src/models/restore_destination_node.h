// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "api/browser_records.h"
#include "models/folder_listing.h"
#include "models/lazy_node.h"

/// A drive, folder or file of the restore's destination computer.
class RestoreDestinationNode : public models::LazyNode {
public:
    /// The root of a computer's tree.
    explicit RestoreDestinationNode(std::shared_ptr<const models::BrowsedComputer> computer);
    RestoreDestinationNode(std::shared_ptr<const models::BrowsedComputer> computer,
                           hessiancln::browse_item_info info);

    const std::string& name() const override { return info_.name; }
    bool isLeaf() const override { return info_.isfile; }

    const hessiancln::browse_item_info& info() const { return info_; }
    /// Whether the agent failed to list it.
    bool noAccess() const { return noAccess_; }

private:
    Children askForChildren() override;

    std::shared_ptr<const models::BrowsedComputer> computer_;
    hessiancln::browse_item_info info_;
    bool noAccess_ = false;
};
