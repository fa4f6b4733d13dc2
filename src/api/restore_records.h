// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hessian/record_layout.h"

namespace hessiancln {

/// A share, or top-level place of a computer, that contains selected items.
struct selected_shares {
    std::string share_name;       ///< the agent's name for it; value for `source_share`
    std::string truncatable_path; ///< the part of the path that a restore may drop, with
                                  ///< backslashes

    static constexpr std::string_view wireType = "com.norvel.api.selected_shares";
    template <class R = selected_shares>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("share_name", &R::share_name),
                                  field("truncatable_path", &R::truncatable_path));
    }
};

/// Where a share is restored to.
struct share_mapping {
    std::string source_share;
    std::string destination_path;    ///< a directory on the destination computer
    std::int32_t truncate_level = 0; ///< number of leading path levels to drop

    static constexpr std::string_view wireType = "com.norvel.api.share_mapping";
    template <class R = share_mapping>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("source_share", &R::source_share),
                                  field("destination_path", &R::destination_path),
                                  field("truncate_level", &R::truncate_level));
    }
};

} // namespace hessiancln
