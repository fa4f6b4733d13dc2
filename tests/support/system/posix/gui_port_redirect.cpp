// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Linked into a test, or preloaded before the client's own libraries into a client started by a
// test. Such a client takes the port from TARN_TEST_AGENT_PORT.
#include "tests/support/gui_port_redirect.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <arpa/inet.h>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {

constexpr std::uint16_t localAgentPort = 4411;

std::uint16_t portOfEnvironment() {
    const char* text = std::getenv("TARN_TEST_AGENT_PORT");
    return text ? static_cast<std::uint16_t>(std::atoi(text)) : std::uint16_t(0);
}

std::atomic<std::uint16_t> agentPort = portOfEnvironment();

bool isLocalAgent(const sockaddr* address, socklen_t length) {
    if (address->sa_family != AF_INET || length < sizeof(sockaddr_in))
        return false;
    sockaddr_in in;
    std::memcpy(&in, address, sizeof in);
    return in.sin_addr.s_addr == htonl(INADDR_LOOPBACK) && in.sin_port == htons(localAgentPort);
}

} // namespace

namespace support {

void redirectLocalAgent(std::uint16_t port) {
    agentPort = port;
}

} // namespace support

extern "C" __attribute__((visibility("default"))) int connect(int socket, const sockaddr* address,
                                                              socklen_t length) {
    using Connect = int (*)(int, const sockaddr*, socklen_t);
    static const auto systemConnect = reinterpret_cast<Connect>(dlsym(RTLD_NEXT, "connect"));
    if (!isLocalAgent(address, length))
        return systemConnect(socket, address, length);
    if (agentPort == 0) {
        errno = ECONNREFUSED;
        return -1;
    }
    sockaddr_in elsewhere;
    std::memcpy(&elsewhere, address, sizeof elsewhere);
    elsewhere.sin_port = htons(agentPort);
    return systemConnect(socket, reinterpret_cast<const sockaddr*>(&elsewhere), sizeof elsewhere);
}
