// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "simulator/wire/exchange.h"

namespace simulator::wire {

/// Listens on 127.0.0.1 and serves every connection on one thread of its own, so that nothing
/// behind it needs to care about threads.
class Listener {
public:
    /// Port 0 takes a free one. Raises `std::system_error` if the port can't be had. `exchange`
    /// outlives the listener.
    Listener(std::uint16_t port, bool tls, Exchange& exchange);

    /// Closes every connection, in whatever state it is, and returns when the thread has ended.
    ~Listener();

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    std::uint16_t port() const;

    /// Cuts every connection that is open now; new ones are welcome.
    void cutConnections();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace simulator::wire
