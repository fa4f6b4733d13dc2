// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "api/remote_object.h"
#include "api/user_email.h"

namespace hessiancln {

/// Two-factor login: codes, and the addresses they are sent to. `mode` is the purpose of a code: 1
/// for sending the list of addresses, 2 for backup sets and deletions.
class TFAManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    std::vector<user_email> getUserEmails();
    bool is2FAEnabled();
    /// Requests a code by mail. Returns the address it was sent to.
    std::string requestCode(std::int32_t mode);
    /// Replaces the whole list.
    void setUserEmails(const std::vector<user_email>& emails);
    /// Throws `invoke_exception` if the code is wrong.
    void validateCode(const std::string& code, std::int32_t mode);
};

} // namespace hessiancln
