// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

#include "models/lazy_node.h"

namespace models {

/// The first three are numbered like Qt's.
enum class CheckState : std::int32_t {
    Unchecked = 0,
    Partly = 1,
    Checked = 2,
    Excluded = 3, ///< taken out of what is selected around it
};

/// A node with a check box. All nodes of its tree are such nodes.
class CheckableNode : public LazyNode {
public:
    CheckState checkState() const { return checkState_; }
    /// Tells nobody and changes nothing around the node.
    void setCheckState(CheckState state) { checkState_ = state; }

    /// What becomes of the node when its mark is taken away.
    virtual CheckState stateWithoutMark() const { return CheckState::Unchecked; }

    CheckableNode* checkableParent() const { return static_cast<CheckableNode*>(parent()); }

private:
    CheckState checkState_ = CheckState::Unchecked;
};

/// What becomes of a node, whose mark is taken away, of a tree that knows exclusions: excluded if
/// what is around it is selected, else unchecked. At the top nothing is around.
CheckState excludedIfSelectedAround(const CheckableNode& node);

/// Is told of each node whose state was set.
using CheckListener = std::function<void(CheckableNode&)>;

/// Sets or takes away the mark of a node and of all that is loaded below it, and recomputes what
/// stands above it. Nothing is fetched; what isn't loaded inherits when it is.
void setChecked(CheckableNode& node, bool check, const CheckListener& changed);

/// Makes the state of a node out of those of its children, if it has been looked into. `changed` is
/// told only of a change.
void recompute(CheckableNode& node, const CheckListener& changed);

/// The same for all nodes above, from the parent up to the root.
void recomputeAncestors(const CheckableNode& node, const CheckListener& changed);

} // namespace models
