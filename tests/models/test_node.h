// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "models/checkable_node.h"

/// A node of a tree that a test defines.
class TestNode final : public models::CheckableNode {
public:
    explicit TestNode(std::string name, bool isFile = false)
        : name_(std::move(name))
        , isFile_(isFile) {}

    const std::string& name() const override { return name_; }
    bool isLeaf() const override { return isFile_; }
    models::CheckState stateWithoutMark() const override {
        return models::excludedIfSelectedAround(*this);
    }

    /// How often its children were fetched.
    int asked = 0;
    /// The children it then returns.
    Children prepared;

private:
    Children askForChildren() override {
        ++asked;
        return std::move(prepared);
    }

    std::string name_;
    bool isFile_;
};

/// Builds a whole tree from nested calls:
///
///     root(folder("C:", State::Partly, {file("a", State::Checked), unopened("d")}))
namespace tree {

using State = models::CheckState;

/// Describes a node to create.
struct Plan {
    std::string name;
    State state = State::Unchecked;
    std::vector<Plan> children{};
    bool isFile = false;
    bool isOpened = true;
};

inline Plan folder(std::string name, State state, std::vector<Plan> children = {}) {
    return {std::move(name), state, std::move(children)};
}
inline Plan file(std::string name, State state = State::Unchecked) {
    return {std::move(name), state, {}, true};
}
/// A folder that hasn't been fetched yet; its children are prepared.
inline Plan unopened(std::string name, State state = State::Unchecked,
                     std::vector<Plan> children = {}) {
    return {std::move(name), state, std::move(children), false, false};
}

inline std::unique_ptr<TestNode> make(const Plan& plan) {
    auto node = std::make_unique<TestNode>(plan.name, plan.isFile);
    node->setCheckState(plan.state);
    for (const Plan& child : plan.children)
        node->prepared.push_back(make(child));
    if (plan.isOpened)
        node->fetch();
    return node;
}

inline std::unique_ptr<TestNode> root(State state, std::vector<Plan> children) {
    return make(folder({}, state, std::move(children)));
}

/// The node at a slash-separated path of names.
inline TestNode& at(TestNode& top, const std::string& path) {
    const auto end = path.find('/');
    for (const auto& child : top.children())
        if (child->name() == path.substr(0, end)) {
            auto& node = static_cast<TestNode&>(*child);
            return end == std::string::npos ? node : at(node, path.substr(end + 1));
        }
    throw std::out_of_range(path);
}

/// The states of all loaded nodes, parents first, as in "C:2 a0".
inline std::string states(models::CheckableNode& top) {
    std::string text;
    models::walk(top, [&](const models::CheckableNode& node) {
        text += (text.empty() ? "" : " ") + node.name() +
                std::to_string(static_cast<int>(node.checkState()));
        return true;
    });
    return text;
}

} // namespace tree
