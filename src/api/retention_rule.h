// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// Which generations are kept; shared by the sets that refer to it.
class RetentionRule : public RemoteObject {
public:
    static constexpr std::string_view family = "RetentionRule";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
