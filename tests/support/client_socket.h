// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace support {

/// The sockets of this process that are connected to this port: the client's ends, for a look at
/// what no public function shows, and for faults that no peer can cause.
inline std::vector<int> clientSockets(std::uint16_t port) {
    std::vector<int> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int descriptor = std::stoi(entry.path().filename().string());
        sockaddr_in peer{};
        socklen_t size = sizeof peer;
        if (::getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) == 0 &&
            peer.sin_family == AF_INET && ntohs(peer.sin_port) == port)
            found.push_back(descriptor);
    }
    return found;
}

/// Whether a small write on this socket leaves at once.
inline bool hasNoDelay(int socket) {
    int value = 0;
    socklen_t size = sizeof value;
    return ::getsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &value, &size) == 0 && value != 0;
}

} // namespace support
