// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/checkable_node.h"

namespace models {

namespace {

/// The kinds of state among the children of a node.
struct Mixture {
    bool selected = false;
    bool unselected = false;

    void add(CheckState state) {
        selected |= state != CheckState::Unchecked;
        unselected |= state == CheckState::Unchecked || state == CheckState::Partly;
    }
    bool isFull() const { return selected && unselected; }
};

Mixture mixtureOf(const CheckableNode& node) {
    Mixture mixture;
    if (node.isLeaf() || !node.isFetched()) {
        // Only its own mark is known, and a partial one says nothing.
        if (node.checkState() != CheckState::Partly)
            mixture.add(node.checkState());
        return mixture;
    }
    for (const auto& child : node.children()) {
        mixture.add(static_cast<const CheckableNode&>(*child).checkState());
        if (mixture.isFull())
            break;
    }
    return mixture;
}

CheckState stateOf(Mixture mixture) {
    if (!mixture.selected)
        return CheckState::Unchecked;
    return mixture.unselected ? CheckState::Partly : CheckState::Checked;
}

} // namespace

CheckState excludedIfSelectedAround(const CheckableNode& node) {
    const CheckableNode* around = node.checkableParent();
    if (!around || !around->parent())
        return CheckState::Unchecked;
    const CheckState state = around->checkState();
    return state == CheckState::Checked || state == CheckState::Excluded ? CheckState::Excluded
                                                                         : CheckState::Unchecked;
}

void setChecked(CheckableNode& node, bool check, const CheckListener& changed) {
    walk(node, [&](CheckableNode& each) {
        each.setCheckState(check ? CheckState::Checked : each.stateWithoutMark());
        changed(each);
        return true;
    });
    if (node.checkState() != CheckState::Excluded)
        recomputeAncestors(node, changed);
}

void recompute(CheckableNode& node, const CheckListener& changed) {
    const CheckState state = stateOf(mixtureOf(node));
    if (state == node.checkState())
        return;
    node.setCheckState(state);
    changed(node);
}

void recomputeAncestors(const CheckableNode& node, const CheckListener& changed) {
    for (CheckableNode* above = node.checkableParent(); above; above = above->checkableParent())
        recompute(*above, changed);
}

} // namespace models
