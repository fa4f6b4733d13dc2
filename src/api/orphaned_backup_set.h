// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// A set that the storage server holds and the agent has lost. It is only passed back.
class OrphanedBackupSet : public RemoteObject {
public:
    static constexpr std::string_view family = "OrphanedBackupSet";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
