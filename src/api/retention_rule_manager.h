// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/remote_object.h"

namespace hessiancln {

/// Hands out, makes and removes retention rules.
class RetentionRuleManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
