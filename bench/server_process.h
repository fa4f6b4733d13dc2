// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>

#include <sys/types.h>

namespace bench {

/// A server in a child process, separated from the client like a real agent: neither its threads
/// nor its memory count as the client's.
class ServerProcess {
public:
    /// Reports the loopback port that the server listens on.
    using Listening = std::function<void(std::uint16_t)>;

    /// Runs `serve`, which doesn't return, in a child process, and waits until it listens. Call it
    /// while the program has only one thread. Throws `std::runtime_error`.
    explicit ServerProcess(const std::function<void(const Listening&)>& serve);
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    /// Kills the child.
    ~ServerProcess();

    std::uint16_t port() const { return port_; }

    /// The CPU time used by the server, in seconds. Throws `std::runtime_error`.
    double processorTime() const;

private:
    pid_t child_ = -1;
    std::uint16_t port_ = 0;
};

} // namespace bench
