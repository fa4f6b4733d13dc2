// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/data_source_browser.h"
#include "api/generic_activity.h"
#include "api/remote_object.h"
#include "api/restore_records.h"

namespace hessiancln {

/// A restore of selected items, ready to start.
class RestoreActivityInitiator : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Browser = boost::shared_ptr<DataSourceBrowser>;
    using Activity = boost::shared_ptr<GenericActivity>;

    /// The shares to map unless the items are restored to their original place.
    std::vector<hessiancln::selected_shares> selected_shares();
    void setRestoreReason(std::int32_t code);
    /// `browser`, which may be null, and `computer` specify the destination. To restore to the
    /// original place, the list is empty and the level 0; with several mappings each level is 0.
    Activity start(const Browser& browser, const std::string& computer,
                   const std::vector<share_mapping>& mappings, std::int32_t truncateLevel);
};

} // namespace hessiancln
