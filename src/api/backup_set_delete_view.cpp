// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_delete_view.h"

#include "api/remote_call.h"

namespace hessiancln {

boost::shared_ptr<DeleteActivityInitiator>
BackupSetDeleteView::prepareDelete(const std::vector<std::int64_t>& items) {
    return call<boost::shared_ptr<DeleteActivityInitiator>>("prepareDelete", items);
}

} // namespace hessiancln
