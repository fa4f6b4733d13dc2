// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/restore_activity_initiator.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<hessiancln::selected_shares> RestoreActivityInitiator::selected_shares() {
    return call<std::vector<hessiancln::selected_shares>>("selected_shares");
}

void RestoreActivityInitiator::setRestoreReason(std::int32_t code) {
    call<void>("setRestoreReason", code);
}

RestoreActivityInitiator::Activity
RestoreActivityInitiator::start(const Browser& browser, const std::string& computer,
                                const std::vector<share_mapping>& mappings,
                                std::int32_t truncateLevel) {
    return call<Activity>("start", browser, computer, mappings, truncateLevel);
}

} // namespace hessiancln
