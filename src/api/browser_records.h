// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "api/selectable_item_type.h"
#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// Nodes in the tree of the network. All but computers can have children.
enum class NetItemType : std::int32_t {
    Container = 0,
    Computer = 1,
};
constexpr auto declaredValues(NetItemType) {
    return hessianser::values({{0, 1}});
}

/// A child of a browsed folder.
struct browse_item_info {
    SelectableItemType type{};
    std::string name;          ///< one component of its path
    bool isfile = false;       ///< it can't have children
    std::int64_t datasize = 0; ///< in bytes

    static constexpr std::string_view wireType = "com.norvel.api.browse_item_info";
    template <class R = browse_item_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("type", &R::type), field("name", &R::name),
                                  field("isfile", &R::isfile), field("datasize", &R::datasize));
    }
};

/// A node of the network.
struct net_item_info {
    std::string name;
    NetItemType type{};

    static constexpr std::string_view wireType = "com.norvel.api.net_item_info";
    template <class R = net_item_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("name", &R::name), field("type", &R::type));
    }
};

/// A well-known place on a computer.
struct PreDefinedBrowseItem {
    std::string path; ///< argument of `createInclusionItem`
    std::string description;

    static constexpr std::string_view wireType = "com.norvel.api.PreDefinedBrowseItem";
    template <class R = PreDefinedBrowseItem>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("path", &R::path), field("description", &R::description));
    }
};

} // namespace hessiancln
