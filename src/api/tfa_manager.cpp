// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/tfa_manager.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<user_email> TFAManager::getUserEmails() {
    return call<std::vector<user_email>>("getUserEmails");
}

bool TFAManager::is2FAEnabled() {
    return call<bool>("is2FAEnabled");
}

std::string TFAManager::requestCode(std::int32_t mode) {
    return call<std::string>("requestCode", mode);
}

void TFAManager::setUserEmails(const std::vector<user_email>& emails) {
    call<void>("setUserEmails", emails);
}

void TFAManager::validateCode(const std::string& code, std::int32_t mode) {
    call<void>("validateCode", code, mode);
}

} // namespace hessiancln
