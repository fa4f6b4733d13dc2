// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/remote_object.h"
#include "api/user_info.h"

namespace hessiancln {

/// Stores the statistics about the customer.
class UserInfoConfiguration : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    user_info getUserInfo();
    void setUserInfo(const user_info& info);
};

} // namespace hessiancln
