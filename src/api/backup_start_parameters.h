// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

/// Options of an on-demand backup.
class BackupStartParameters : public RemoteObject {
public:
    static constexpr std::string_view family = "BackupStartParameters";
    using RemoteObject::RemoteObject;

    void setDoRetentionAfter(bool value);

    /// Scan the source before the backup begins.
    void setPreScanSource(bool value);
};

} // namespace hessiancln
