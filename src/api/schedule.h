// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// When backups run; shared by the sets that refer to it.
class Schedule : public RemoteObject {
public:
    static constexpr std::string_view family = "Schedule";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
