// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <boost/shared_ptr.hpp>

#include "hessian/record_layout.h"
#include "hessian/writer.h"

namespace hessiancln {

class ClientConnection;

/// The answer to one step of integrated logon. `Reference` is the type of the session's root
/// object: a proxy here, a handle on the agent's side.
template <class Reference>
struct basic_sspi_login_info {
    hessianser::Binary context; ///< the next token for the client, preceded by its length
    std::string user;
    std::string domain;
    Reference conn;

    static constexpr std::string_view wireType = "com.norvel.api.sspi_login_info";
    static constexpr auto fields() {
        using hessianser::field;
        using R = basic_sspi_login_info;
        return hessianser::fields(field("context", &R::context), field("user", &R::user),
                                  field("domain", &R::domain), field("conn", &R::conn));
    }
};

using sspi_login_info = basic_sspi_login_info<boost::shared_ptr<ClientConnection>>;

} // namespace hessiancln
