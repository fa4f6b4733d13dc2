// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/generic_activity.h"

#include "api/remote_call.h"

namespace hessiancln {

void GenericActivity::Stop() {
    call<void>("Stop");
}

std::int32_t GenericActivity::getID() {
    return call<std::int32_t>("getID");
}

} // namespace hessiancln
