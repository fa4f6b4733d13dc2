// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

#include "models/lazy_node.h"

namespace models {

/// The first three have the same values as Qt's.
enum class CheckState : std::int32_t {
    Unchecked = 0,
    Partly = 1,
    Checked = 2,
    Excluded = 3, ///< excluded from the selection around it
};

/// A node with a check box. All nodes in its tree are of this class.
class CheckableNode : public LazyNode {
public:
    CheckState checkState() const { return checkState_; }
    /// Sends no notification and changes nothing around the node.
    void setCheckState(CheckState state) { checkState_ = state; }

    /// The state of the node once its mark is removed.
    virtual CheckState stateWithoutMark() const { return CheckState::Unchecked; }

    CheckableNode* checkableParent() const { return static_cast<CheckableNode*>(parent()); }

private:
    CheckState checkState_ = CheckState::Unchecked;
};

/// The new state of a node whose mark is removed, in a tree with exclusions: excluded if its
/// surroundings are selected, else unchecked. The top has no surroundings.
CheckState excludedIfSelectedAround(const CheckableNode& node);

/// Called for each node whose state was set.
using CheckListener = std::function<void(CheckableNode&)>;

/// Sets or removes the mark of a node and of everything loaded below it, and recomputes its
/// ancestors. Fetches nothing; nodes inherit the state when they are loaded.
void setChecked(CheckableNode& node, bool check, const CheckListener& changed);

/// Computes the state of a node from its children, if they have been fetched. `changed` is called
/// only on a change.
void recompute(CheckableNode& node, const CheckListener& changed);

/// Likewise for all ancestors, from the parent up to the root.
void recomputeAncestors(const CheckableNode& node, const CheckListener& changed);

} // namespace models
