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

/// A restore of chosen items, ready to start.
class RestoreActivityInitiator : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Browser = boost::shared_ptr<DataSourceBrowser>;
    using Activity = boost::shared_ptr<GenericActivity>;

    /// The shares that have to be mapped if the items don't go to where they came from.
    std::vector<hessiancln::selected_shares> selected_shares();
    void setRestoreReason(std::int32_t code);
    /// `browser` and `computer` say where the items go, and `browser` may be null. The list is
    /// empty, and the level 0, if they go to where they came from; with several mappings each level
    /// is 0.
    Activity start(const Browser& browser, const std::string& computer,
                   const std::vector<share_mapping>& mappings, std::int32_t truncateLevel);
};

} // namespace hessiancln
