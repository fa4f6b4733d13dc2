// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// How the agent gets access to the computer that a set belongs to.
class BackupSetCredentials : public RemoteObject {
public:
    static constexpr std::string_view family = "BackupSetCredentials";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
