// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/security_context.h"

#include "platform/posix/spnego_operations.h"

namespace platform {

SecurityOperations* securityOperations() {
    return &spnegoOperations();
}

} // namespace platform
