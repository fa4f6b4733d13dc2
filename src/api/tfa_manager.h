// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/remote_object.h"

namespace hessiancln {

/// Two-factor login: codes, and the addresses that they are sent to.
class TFAManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
