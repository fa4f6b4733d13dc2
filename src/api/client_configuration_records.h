// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "api/key_encryption_type.h"
#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// The operating system of the agent's computer, 0 to 2. Except on Windows, paths have forward
/// slashes and are case-sensitive.
enum class ClientOSType : std::int32_t {
    Windows = 0,
};
constexpr auto declaredValues(ClientOSType) {
    return hessianser::values({{0, 2}});
}

enum class DayOfWeekCode : std::int32_t {
    Monday = 0,
    Tuesday = 1,
    Wednesday = 2,
    Thursday = 3,
    Friday = 4,
    Saturday = 5,
    Sunday = 6,
};
constexpr auto declaredValues(DayOfWeekCode) {
    return hessianser::values({{0, 6}});
}

/// The agent's registration with its storage server. Keys are stored as typed.
struct tarnc_reg_info {
    std::string customer_name;
    std::string account_num; ///< in upper case
    std::string client_num;  ///< 12 characters in upper case
    KeyEncryptionType private_key_enc{};
    KeyEncryptionType account_key_enc{};
    std::string private_key;
    std::string account_key;     ///< may be empty if its cipher is NONE
    std::string tarnsys_ip_addr; ///< result of `joinSystemAddresses`
    bool escrow_enc_key = false; ///< the keys may be forwarded to the storage server

    static constexpr std::string_view wireType = "com.norvel.api.tarnc_reg_info";
    template <class R = tarnc_reg_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(
            field("customer_name", &R::customer_name), field("account_num", &R::account_num),
            field("client_num", &R::client_num), field("private_key_enc", &R::private_key_enc),
            field("account_key_enc", &R::account_key_enc), field("private_key", &R::private_key),
            field("account_key", &R::account_key), field("tarnsys_ip_addr", &R::tarnsys_ip_addr),
            field("escrow_enc_key", &R::escrow_enc_key));
    }
};

/// The account with which the agent looks up users in a directory.
struct ad_user_info {
    std::string username;
    std::string password;
    bool save = false; ///< whether the agent stores the account

    static constexpr std::string_view wireType = "com.norvel.api.ad_user_info";
    template <class R = ad_user_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("username", &R::username), field("password", &R::password),
                                  field("save", &R::save));
    }
};

} // namespace hessiancln
