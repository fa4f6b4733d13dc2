// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/sockets.h"

#include <system_error>

#include <winsock2.h>

#include <ws2tcpip.h>

namespace support::sockets {

namespace {

SOCKET handle(Socket socket) {
    return static_cast<SOCKET>(socket);
}

SOCKET newSocket() {
    static const int started = [] {
        WSADATA unused;
        return WSAStartup(MAKEWORD(2, 2), &unused);
    }();
    return started == 0 ? ::socket(AF_INET, SOCK_STREAM, 0) : INVALID_SOCKET;
}

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

template <class Value>
void setOption(Socket socket, int level, int option, const Value& value) {
    ::setsockopt(handle(socket), level, option, reinterpret_cast<const char*>(&value),
                 sizeof value);
}

} // namespace

Socket listenOnLoopback(std::uint16_t& port, int backlog) {
    const SOCKET listener = newSocket();
    sockaddr_in address = loopback(port);
    int size = sizeof address;
    auto* any = reinterpret_cast<sockaddr*>(&address);
    if (listener == INVALID_SOCKET || ::bind(listener, any, size) != 0 ||
        ::listen(listener, backlog) != 0 || ::getsockname(listener, any, &size) != 0)
        throw std::system_error(WSAGetLastError(), std::system_category(), "no listener");
    port = ntohs(address.sin_port);
    return static_cast<Socket>(listener);
}

Socket accept(Socket listener) {
    return static_cast<Socket>(::accept(handle(listener), nullptr, nullptr));
}

Socket connectToLoopback(std::uint16_t port) {
    const SOCKET socket = newSocket();
    const sockaddr_in address = loopback(port);
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return static_cast<Socket>(socket);
    ::closesocket(socket);
    return -1;
}

void limitReads(Socket socket, std::chrono::milliseconds limit) {
    setOption(socket, SOL_SOCKET, SO_RCVTIMEO, static_cast<DWORD>(limit.count()));
}

void limitWrites(Socket socket, std::chrono::milliseconds limit) {
    setOption(socket, SOL_SOCKET, SO_SNDTIMEO, static_cast<DWORD>(limit.count()));
}

void sendAtOnce(Socket socket) {
    setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1);
}

std::ptrdiff_t receive(Socket socket, char* into, std::size_t size) {
    return ::recv(handle(socket), into, static_cast<int>(size), 0);
}

std::ptrdiff_t send(Socket socket, const char* from, std::size_t size) {
    return ::send(handle(socket), from, static_cast<int>(size), 0);
}

bool wasReset() {
    const int failure = WSAGetLastError();
    return failure == WSAECONNRESET || failure == WSAECONNABORTED;
}

bool wasTimeout() {
    return WSAGetLastError() == WSAETIMEDOUT;
}

std::string lastFailure() {
    return std::system_category().message(WSAGetLastError());
}

void shutdown(Socket socket) {
    ::shutdown(handle(socket), SD_BOTH);
}

void shutdownWrites(Socket socket) {
    ::shutdown(handle(socket), SD_SEND);
}

void reset(Socket& socket) {
    setOption(socket, SOL_SOCKET, SO_LINGER, linger{1, 0});
    ::closesocket(handle(socket));
    socket = static_cast<Socket>(newSocket());
}

void close(Socket socket) {
    ::closesocket(handle(socket));
}

std::vector<Socket> connectedTo(std::uint16_t port) {
    // No list of a process's handles is public, but each is a multiple of four, and the lowest that
    // is free.
    constexpr SOCKET step = 4;
    constexpr SOCKET end = 0x4000;
    std::vector<Socket> found;
    for (SOCKET socket = step; socket < end; socket += step) {
        sockaddr_in peer{};
        int size = sizeof peer;
        if (::getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &size) == 0 &&
            peer.sin_family == AF_INET && ntohs(peer.sin_port) == port)
            found.push_back(static_cast<Socket>(socket));
    }
    return found;
}

bool hasNoDelay(Socket socket) {
    // Some systems write one byte of it, some four.
    DWORD value = 0;
    int size = sizeof value;
    return ::getsockopt(handle(socket), IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<char*>(&value),
                        &size) == 0 &&
           value != 0;
}

void blockBrokenPipe() {}

} // namespace support::sockets
