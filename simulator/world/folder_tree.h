// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "api/browser_records.h"

namespace simulator {

/// What stands on the drives of a computer. Paths are names joined with backslashes, and begin
/// with a drive: "C:\Users", or "/\home" on Unix. A name stands for the same thing in any case,
/// unless `caseMatters`.
class FolderTree {
public:
    using Item = hessiancln::browse_item_info;
    using Type = hessiancln::SelectableItemType;

    explicit FolderTree(bool caseMatters = false)
        : caseMatters_(caseMatters) {}

    /// What is missing above it comes with it: a drive, and folders.
    void addFolder(std::string_view path, Type type = Type::Folder);
    void addFile(std::string_view path, std::int64_t size, Type type = Type::File);

    /// From now on nobody can look into the folder; the text says why.
    void deny(std::string_view path, const std::string& why);

    /// The folder has so many entries more, each tenth a folder. They are in no order, and are
    /// made only when somebody looks.
    void fill(std::string_view path, std::size_t count);

    /// The children of a path, or the drives if it is empty. Raises `Refusal` if there is no such
    /// folder, or no access.
    std::vector<Item> list(std::string_view path) const;

private:
    struct Node {
        Item item;
        std::string denied;
        std::size_t bulk = 0;
        std::vector<Node> children;
    };

    bool same(std::string_view one, std::string_view other) const;
    Node& make(std::string_view path);
    /// Where the child stands; behind all others if there is none.
    std::size_t indexOf(const Node& parent, std::string_view name) const;
    bool isFolderOfBulk(const Node& parent, std::string_view name) const;

    bool caseMatters_;
    Node root_;
};

} // namespace simulator
