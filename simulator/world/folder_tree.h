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

/// The files and folders on the drives of a computer. Paths are names joined with backslashes, and
/// begin with a drive: "C:\Users", or "/\home" on Unix. Names are case-insensitive unless
/// `caseMatters`.
class FolderTree {
public:
    using Item = hessiancln::browse_item_info;
    using Type = hessiancln::SelectableItemType;

    explicit FolderTree(bool caseMatters = false)
        : caseMatters_(caseMatters) {}

    /// Missing ancestors, a drive and folders, are created.
    void addFolder(std::string_view path, Type type = Type::Folder);
    void addFile(std::string_view path, std::int64_t size, Type type = Type::File);

    /// Makes the folder inaccessible from now on; the text is the reason.
    void deny(std::string_view path, const std::string& why);

    /// Adds this many entries to the folder, every tenth a folder. They are unordered, and are
    /// created on first access.
    void fill(std::string_view path, std::size_t count);

    /// The children of a path, or the drives if it is empty. Throws `Refusal` if there is no such
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
    /// The index of the child; the number of children if none has this name.
    std::size_t indexOf(const Node& parent, std::string_view name) const;
    bool isFolderOfBulk(const Node& parent, std::string_view name) const;

    bool caseMatters_;
    Node root_;
};

} // namespace simulator
