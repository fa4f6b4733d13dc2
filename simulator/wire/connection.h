// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>

#include "simulator/wire/exchange.h"

namespace simulator::wire {

/// One accepted connection. It keeps itself alive during an operation, and is used on the I/O
/// thread only.
class Connection {
public:
    virtual ~Connection() = default;

    virtual void start() = 0;

    /// Closes the socket immediately, without notifying the peer.
    virtual void cut() = 0;
};

std::shared_ptr<Connection> makePlainConnection(boost::asio::ip::tcp::socket socket,
                                                Exchange& exchange);
std::shared_ptr<Connection> makeTlsConnection(boost::asio::ip::tcp::socket socket,
                                              boost::asio::ssl::context& context,
                                              Exchange& exchange);

} // namespace simulator::wire
