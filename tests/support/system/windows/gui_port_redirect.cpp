// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Linked into a test, or into a client started by a test. Such a client takes the port from
// TARN_TEST_AGENT_PORT.
#include "tests/support/gui_port_redirect.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include <winsock2.h>

#include <mswsock.h>
#include <ws2tcpip.h>

#include "tests/support/system/windows/system_function.h"

namespace {

constexpr std::uint16_t localAgentPort = 4411;

std::uint16_t portOfEnvironment() {
    const char* text = std::getenv("TARN_TEST_AGENT_PORT");
    return text ? static_cast<std::uint16_t>(std::atoi(text)) : std::uint16_t(0);
}

std::atomic<std::uint16_t> agentPort = portOfEnvironment();

/// The redirected destination of an address; port 0 for none.
class Destination {
public:
    Destination(const sockaddr* address, int length)
        : address_(address)
        , length_(length) {
        if (address->sa_family != AF_INET || length < int(sizeof elsewhere_))
            return;
        std::memcpy(&elsewhere_, address, sizeof elsewhere_);
        if (elsewhere_.sin_addr.s_addr != htonl(INADDR_LOOPBACK) ||
            elsewhere_.sin_port != htons(localAgentPort))
            return;
        elsewhere_.sin_port = htons(agentPort);
        refused_ = elsewhere_.sin_port == 0;
        address_ = reinterpret_cast<const sockaddr*>(&elsewhere_);
    }
    Destination(const Destination&) = delete;
    Destination& operator=(const Destination&) = delete;

    bool refused() const { return refused_; }
    const sockaddr* address() const { return address_; }
    int length() const { return length_; }

private:
    const sockaddr* address_;
    int length_;
    sockaddr_in elsewhere_{};
    bool refused_ = false;
};

LPFN_CONNECTEX systemConnectEx = nullptr;

BOOL PASCAL redirectedConnectEx(SOCKET socket, const sockaddr* address, int length, void* data,
                                DWORD size, DWORD* sent, OVERLAPPED* overlapped) {
    const Destination destination(address, length);
    if (destination.refused()) {
        WSASetLastError(WSAECONNREFUSED);
        return FALSE;
    }
    return systemConnectEx(socket, destination.address(), destination.length(), data, size, sent,
                           overlapped);
}

int PASCAL redirectedConnect(SOCKET socket, const sockaddr* address, int length) {
    static const auto systemConnect =
        support::systemFunction<decltype(&redirectedConnect)>(L"ws2_32.dll", "connect");
    const Destination destination(address, length);
    if (destination.refused()) {
        WSASetLastError(WSAECONNREFUSED);
        return SOCKET_ERROR;
    }
    return systemConnect(socket, destination.address(), destination.length());
}

/// Programs use this to obtain ConnectEx, which no library exports.
int PASCAL redirectedIoctl(SOCKET socket, DWORD code, void* in, DWORD inSize, void* out,
                           DWORD outSize, DWORD* written, WSAOVERLAPPED* overlapped,
                           LPWSAOVERLAPPED_COMPLETION_ROUTINE done) {
    static const auto systemIoctl =
        support::systemFunction<decltype(&redirectedIoctl)>(L"ws2_32.dll", "WSAIoctl");
    const int status =
        systemIoctl(socket, code, in, inSize, out, outSize, written, overlapped, done);
    static const GUID connectEx = WSAID_CONNECTEX;
    if (status == 0 && code == SIO_GET_EXTENSION_FUNCTION_POINTER && inSize == sizeof connectEx &&
        std::memcmp(in, &connectEx, sizeof connectEx) == 0) {
        std::memcpy(&systemConnectEx, out, sizeof systemConnectEx);
        const LPFN_CONNECTEX ours = redirectedConnectEx;
        std::memcpy(out, &ours, sizeof ours);
    }
    return status;
}

} // namespace

namespace support {

void redirectLocalAgent(std::uint16_t port) {
    agentPort = port;
}

} // namespace support

// The pointer that a call of the imported function jumps through; the linker takes this one before
// the system's.
extern "C" {
decltype(&redirectedConnect) __imp_connect = redirectedConnect;
decltype(&redirectedIoctl) __imp_WSAIoctl = redirectedIoctl;
}
