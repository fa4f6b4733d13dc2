// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/security_operations_override.h"

namespace {

platform::SecurityOperations* inUse = nullptr;

} // namespace

// Found before the one in the platform library, which is then left out.
platform::SecurityOperations* platform::securityOperations() {
    return inUse;
}

namespace support {

SecurityOperationsOverride::SecurityOperationsOverride(platform::SecurityOperations* operations) {
    inUse = operations;
}

SecurityOperationsOverride::~SecurityOperationsOverride() {
    inUse = nullptr;
}

void leaveOutSystemSecurity() {}

} // namespace support
