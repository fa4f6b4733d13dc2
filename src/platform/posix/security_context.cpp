// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/security_context.h"

namespace platform {

SecurityOperations* securityOperations() {
    return nullptr;
}

bool integratedLogonAvailable() {
    return false;
}

} // namespace platform
