// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/security_context.h"

namespace support {

/// Puts `operations`, which may be null, in the place of this system's for as long as the object
/// lives. One at a time, and while nobody logs in. A program that links this has no security
/// operations of its system at any time: the linker takes ours in their place.
class SecurityOperationsOverride {
public:
    explicit SecurityOperationsOverride(platform::SecurityOperations* operations);
    SecurityOperationsOverride(const SecurityOperationsOverride&) = delete;
    SecurityOperationsOverride& operator=(const SecurityOperationsOverride&) = delete;
    ~SecurityOperationsOverride();
};

/// For a program that never overrides them: being called is what makes it link this.
void leaveOutSystemSecurity();

} // namespace support
