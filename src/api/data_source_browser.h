// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// Looks at what can be backed up on a computer.
class DataSourceBrowser : public RemoteObject {
public:
    static constexpr std::string_view family = "DataSourceBrowser";
    using RemoteObject::RemoteObject;
};

} // namespace hessiancln
