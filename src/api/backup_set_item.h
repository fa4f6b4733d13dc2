// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// One thing that a backup set includes or leaves out.
class BackupSetItem : public RemoteObject {
public:
    static constexpr std::string_view family = "BackupSetItem";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
