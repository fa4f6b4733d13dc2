// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace hessiancln {

/// The endpoint of a raw stream.
struct ConnectionKey {
    bool useTls = false;
    std::string host;
    std::uint32_t port = 0;

    /// Orders by TLS, then by port, then by host, ignoring case.
    bool operator<(const ConnectionKey& other) const;
};

} // namespace hessiancln
