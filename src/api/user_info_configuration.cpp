// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/user_info_configuration.h"

#include "api/remote_call.h"

namespace hessiancln {

user_info UserInfoConfiguration::getUserInfo() {
    return call<user_info>("getUserInfo");
}

void UserInfoConfiguration::setUserInfo(const user_info& info) {
    call<void>("setUserInfo", info);
}

} // namespace hessiancln
