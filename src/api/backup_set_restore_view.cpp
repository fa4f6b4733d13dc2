// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_restore_view.h"

#include "api/remote_call.h"

namespace hessiancln {

boost::shared_ptr<RestoreActivityInitiator>
BackupSetRestoreView::prepareRestore(const std::vector<std::int64_t>& items) {
    return call<boost::shared_ptr<RestoreActivityInitiator>>("prepareRestore", items);
}

} // namespace hessiancln
