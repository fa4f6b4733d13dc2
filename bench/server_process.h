// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

#include <sys/types.h>

namespace bench {

/// A server in a child process, as an agent is one to its client: neither its threads nor its
/// memory are counted among the client's.
class ServerProcess {
public:
    /// Tells the port on loopback that the server listens on.
    using Listening = std::function<void(std::uint16_t)>;

    /// Runs `serve`, which doesn't return, in a child, and waits until it listens. To be called
    /// while the program has one thread only. Raises `std::runtime_error`.
    explicit ServerProcess(const std::function<void(const Listening&)>& serve);
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    /// Kills the child.
    ~ServerProcess();

    std::uint16_t port() const { return port_; }

    /// The processor's time that the server has used, in seconds. Raises `std::runtime_error`.
    double processorTime() const;

private:
    pid_t child_ = -1;
    std::uint16_t port_ = 0;
};

} // namespace bench
