// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "api/selectable_item_type.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// An entry in the content of a backup set.
struct SelectableItem {
    std::int64_t id = 0; ///< within its view; below 1 for a group that can't be selected by its id
    std::string name;
    SelectableItemType data_type{};
    bool is_file = false; ///< it has no children
    bool is_selectable = false;

    static constexpr std::string_view wireType = "com.norvel.api.SelectableItem";
    template <class R = SelectableItem>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("id", &R::id), field("name", &R::name),
                                  field("data_type", &R::data_type), field("is_file", &R::is_file),
                                  field("is_selectable", &R::is_selectable));
    }
};

/// A version of a file. Times are seconds since 1970 UTC; sizes are in bytes.
struct file_generations {
    std::int32_t modification_time = 0; ///< modification time of the file
    std::int32_t backup_time = 0;
    std::int64_t data_size = 0;
    std::int64_t stream_size = 0; ///< stored size

    static constexpr std::string_view wireType = "com.norvel.api.file_generations";
    template <class R = file_generations>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("modification_time", &R::modification_time),
                                  field("backup_time", &R::backup_time),
                                  field("data_size", &R::data_size),
                                  field("stream_size", &R::stream_size));
    }
};

} // namespace hessiancln
