// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/security_context.h"

namespace support {

/// Replaces this system's security operations with `operations`, which may be null, for the
/// lifetime of the object. One at a time, and not during a login. A program that links this never
/// has the security operations of its system: the linker takes these instead.
class SecurityOperationsOverride {
public:
    explicit SecurityOperationsOverride(platform::SecurityOperations* operations);
    SecurityOperationsOverride(const SecurityOperationsOverride&) = delete;
    SecurityOperationsOverride& operator=(const SecurityOperationsOverride&) = delete;
    ~SecurityOperationsOverride();
};

/// For a program that never overrides them: calling it pulls in this object file.
void leaveOutSystemSecurity();

} // namespace support
