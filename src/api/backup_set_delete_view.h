// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_data_view.h"
#include "api/delete_activity_initiator.h"

namespace hessiancln {

/// The filtered content of a set, for deletion.
class BackupSetDeleteView : public BackupSetDataView {
public:
    using BackupSetDataView::BackupSetDataView;

    boost::shared_ptr<DeleteActivityInitiator>
    prepareDelete(const std::vector<std::int64_t>& items);
};

} // namespace hessiancln
