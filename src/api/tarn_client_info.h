// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "hessian/record_layout.h"

namespace hessiancln {

/// A row in the list of the agent's properties.
struct tarn_client_info {
    std::string name; ///< caption
    std::string value;

    static constexpr std::string_view wireType = "com.norvel.api.tarn_client_info";
    template <class R = tarn_client_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("name", &R::name), field("value", &R::value));
    }
};

} // namespace hessiancln
