// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/folder_tree.h"

#include <algorithm>
#include <array>
#include <utility>

#include "simulator/objects/failures.h"
#include "simulator/world/names.h"

namespace simulator {
namespace {

constexpr std::size_t bulkFolderEvery = 10;

/// Spreads neighbours; names are unique unless the stride divides the count.
FolderTree::Item bulkItem(std::size_t number, std::size_t count) {
    constexpr std::size_t stride = 7'919;
    constexpr std::array<std::string_view, 3> heads{"Scan ", "SCAN ", "scan "};
    std::string digits = std::to_string(number * stride % count);
    digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
    if (number % bulkFolderEvery == 0)
        return {FolderTree::Type::Folder, "Batch " + digits, false, 0};
    const std::string head(heads[number % heads.size()]);
    const auto size = static_cast<std::int64_t>(number) * 1'024;
    return {FolderTree::Type::File, head + digits + ".tif", true, size};
}

} // namespace

bool FolderTree::same(std::string_view one, std::string_view other) const {
    return caseMatters_ ? one == other : agreeWithoutCase(one, other);
}

std::size_t FolderTree::indexOf(const Node& parent, std::string_view name) const {
    const auto found = std::find_if(parent.children.begin(), parent.children.end(),
                                    [&](const Node& one) { return same(one.item.name, name); });
    return static_cast<std::size_t>(found - parent.children.begin());
}

FolderTree::Node& FolderTree::make(std::string_view path) {
    Node* node = &root_;
    for (const std::string_view name : namesOf(path)) {
        const std::size_t index = indexOf(*node, name);
        if (index == node->children.size()) {
            const Type type = node == &root_ ? Type::Drive : Type::Folder;
            node->children.push_back({{type, std::string(name), false, 0}, {}, 0, {}});
        }
        node = &node->children[index];
    }
    return *node;
}

void FolderTree::addFolder(std::string_view path, Type type) {
    Item& item = make(path).item;
    if (item.type == Type::Folder)
        item.type = type;
}

void FolderTree::addFile(std::string_view path, std::int64_t size, Type type) {
    Item& item = make(path).item;
    item.type = type;
    item.isfile = true;
    item.datasize = size;
}

void FolderTree::deny(std::string_view path, const std::string& why) {
    make(path).denied = why;
}

void FolderTree::fill(std::string_view path, std::size_t count) {
    make(path).bulk = count;
}

bool FolderTree::isFolderOfBulk(const Node& parent, std::string_view name) const {
    for (std::size_t number = 0; number < parent.bulk; number += bulkFolderEvery)
        if (same(bulkItem(number, parent.bulk).name, name))
            return true;
    return false;
}

std::vector<FolderTree::Item> FolderTree::list(std::string_view path) const {
    const Node* node = &root_;
    for (const std::string_view name : namesOf(path)) {
        if (!node->denied.empty())
            throw Refusal(node->denied);
        const std::size_t index = indexOf(*node, name);
        const bool missing = index == node->children.size();
        if (missing && isFolderOfBulk(*node, name))
            return {};
        if (missing || node->children[index].item.isfile)
            throw Refusal("There is no folder '" + std::string(path) + "'.");
        node = &node->children[index];
    }
    if (!node->denied.empty())
        throw Refusal(node->denied);
    std::vector<Item> items;
    items.reserve(node->children.size() + node->bulk);
    for (const Node& one : node->children)
        items.push_back(one.item);
    for (std::size_t number = 0; number < node->bulk; ++number)
        items.push_back(bulkItem(number, node->bulk));
    return items;
}

} // namespace simulator
