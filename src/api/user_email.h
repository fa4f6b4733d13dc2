// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "hessian/record_layout.h"

namespace hessiancln {

/// An address to which a user's login codes are sent.
struct user_email {
    std::string username;
    std::string domain;
    std::string email;

    static constexpr std::string_view wireType = "com.norvel.api.user_email";
    template <class R = user_email>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("username", &R::username), field("domain", &R::domain),
                                  field("email", &R::email));
    }
};

} // namespace hessiancln
