// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/wire/listener.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/address_v4.hpp>
#include <boost/asio/post.hpp>

#include "simulator/wire/certificate.h"
#include "simulator/wire/connection.h"

namespace simulator::wire {

namespace asio = boost::asio;
using boost::system::error_code;
using tcp = asio::ip::tcp;

namespace {

// For example, if the process has run out of descriptors.
constexpr std::chrono::milliseconds pauseBetweenFailures{20};

} // namespace

struct Listener::Parts {
    Parts(std::uint16_t port, bool useTls, Exchange& behind)
        : exchange(behind)
        , tls(useTls)
        , context(selfSignedContext())
        , acceptor(io) {
        const tcp::endpoint endpoint(asio::ip::address_v4::loopback(), port);
        acceptor.open(endpoint.protocol());
        acceptor.set_option(tcp::acceptor::reuse_address(true));
        acceptor.bind(endpoint);
        acceptor.listen();
        accept();
    }

    void accept() {
        acceptor.async_accept([this](error_code error, tcp::socket socket) {
            if (error == asio::error::operation_aborted)
                return;
            if (!error)
                serve(std::move(socket));
            else
                std::this_thread::sleep_for(pauseBetweenFailures);
            accept();
        });
    }

    void serve(tcp::socket socket) {
        std::erase_if(connections, [](const auto& connection) { return connection.expired(); });
        const auto connection = tls ? makeTlsConnection(std::move(socket), context, exchange)
                                    : makePlainConnection(std::move(socket), exchange);
        connections.push_back(connection);
        connection->start();
    }

    Exchange& exchange;
    const bool tls;
    // Outlives the connections that pending handlers may still hold.
    asio::ssl::context context;
    std::vector<std::weak_ptr<Connection>> connections;
    asio::io_context io{1};
    tcp::acceptor acceptor;
    std::thread thread;
};

Listener::Listener(std::uint16_t port, bool tls, Exchange& exchange) {
    try {
        parts_ = std::make_unique<Parts>(port, tls, exchange);
    } catch (const boost::system::system_error& error) {
        throw std::system_error(error.code().value(), std::system_category(),
                                "can't listen on port " + std::to_string(port));
    }
    parts_->thread = std::thread([&io = parts_->io] { io.run(); });
}

Listener::~Listener() {
    parts_->io.stop();
    parts_->thread.join();
}

std::uint16_t Listener::port() const {
    return parts_->acceptor.local_endpoint().port();
}

void Listener::cutConnections() {
    asio::post(parts_->io, [parts = parts_.get()] {
        for (const auto& connection : parts->connections)
            if (const auto open = connection.lock())
                open->cut();
    });
}

} // namespace simulator::wire
