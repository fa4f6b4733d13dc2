// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// A set that exists on the storage server but is lost on the agent. An opaque argument.
class OrphanedBackupSet : public RemoteObject {
public:
    static constexpr std::string_view family = "OrphanedBackupSet";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
