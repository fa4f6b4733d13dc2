// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/connection_key.h"

#include "transport/ignore_case.h"

namespace hessiancln {

bool ConnectionKey::operator<(const ConnectionKey& other) const {
    if (useTls != other.useTls)
        return useTls;
    if (port != other.port)
        return port < other.port;
    return compareIgnoringCase(host, other.host) < 0;
}

} // namespace hessiancln
