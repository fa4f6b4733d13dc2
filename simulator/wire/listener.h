// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "simulator/wire/exchange.h"

namespace simulator::wire {

/// Listens on 127.0.0.1 and serves all connections on a thread of its own, so that the code it
/// calls needn't care about threads.
class Listener {
public:
    /// Port 0 selects a free one. Throws `std::system_error` if the port isn't available.
    /// `exchange` must outlive the listener.
    Listener(std::uint16_t port, bool tls, Exchange& exchange);

    /// Closes every connection, in whatever state it is, and returns when the thread has ended.
    ~Listener();

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    std::uint16_t port() const;

    /// Cuts all open connections; new ones are accepted.
    void cutConnections();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace simulator::wire
