// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/administrators.h"

#include "platform/administrators.h"
#include "session/system_question.h"
#include "transport/invoke_exception.h"

namespace session {

bool isAdministrator(const std::string& user) {
    try {
        return askSystem<bool>([user] { return platform::isAdministrator(user); });
    } catch (const hessiancln::invoke_exception&) {
        return false;
    }
}

} // namespace session
