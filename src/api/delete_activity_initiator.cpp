// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/delete_activity_initiator.h"

#include "api/remote_call.h"

namespace hessiancln {

boost::shared_ptr<GenericActivity> DeleteActivityInitiator::start() {
    return call<boost::shared_ptr<GenericActivity>>("start");
}

} // namespace hessiancln
