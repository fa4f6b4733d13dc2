// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/data_browser_with_set_creation.h"

#include "api/remote_call.h"

namespace hessiancln {

boost::shared_ptr<BackupSet>
DataBrowserWithSetCreation::createBackupSet(const std::string& computer) {
    return call<boost::shared_ptr<BackupSet>>("createBackupSet", computer);
}

} // namespace hessiancln
