// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_start_parameters.h"

#include "api/remote_call.h"

namespace hessiancln {

void BackupStartParameters::setDoRetentionAfter(bool value) {
    call<void>("setDoRetentionAfter", value);
}

void BackupStartParameters::setPreScanSource(bool value) {
    call<void>("setPreScanSource", value);
}

} // namespace hessiancln
