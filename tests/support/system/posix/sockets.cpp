// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/sockets.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace support::sockets {

namespace {

int number(Socket socket) {
    return static_cast<int>(socket);
}

int newSocket() {
    return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

void setLimit(Socket socket, int option, std::chrono::milliseconds limit) {
    const timeval value{limit.count() / 1000, limit.count() % 1000 * 1000};
    ::setsockopt(number(socket), SOL_SOCKET, option, &value, sizeof value);
}

} // namespace

Socket listenOnLoopback(std::uint16_t& port, int backlog) {
    const int listener = newSocket();
    sockaddr_in address = loopback(port);
    const int on = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    socklen_t size = sizeof address;
    auto* any = reinterpret_cast<sockaddr*>(&address);
    if (listener < 0 || ::bind(listener, any, size) != 0 || ::listen(listener, backlog) != 0 ||
        ::getsockname(listener, any, &size) != 0)
        throw std::system_error(errno, std::generic_category(), "no listener");
    port = ntohs(address.sin_port);
    return listener;
}

Socket accept(Socket listener) {
    return ::accept4(number(listener), nullptr, nullptr, SOCK_CLOEXEC);
}

Socket connectToLoopback(std::uint16_t port) {
    const int socket = newSocket();
    const sockaddr_in address = loopback(port);
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return socket;
    ::close(socket);
    return -1;
}

void limitReads(Socket socket, std::chrono::milliseconds limit) {
    setLimit(socket, SO_RCVTIMEO, limit);
}

void limitWrites(Socket socket, std::chrono::milliseconds limit) {
    setLimit(socket, SO_SNDTIMEO, limit);
}

void sendAtOnce(Socket socket) {
    const int on = 1;
    ::setsockopt(number(socket), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

std::ptrdiff_t receive(Socket socket, char* into, std::size_t size) {
    return ::recv(number(socket), into, size, 0);
}

std::ptrdiff_t send(Socket socket, const char* from, std::size_t size) {
    return ::send(number(socket), from, size, MSG_NOSIGNAL);
}

bool wasReset() {
    return errno == ECONNRESET;
}

bool wasTimeout() {
    return errno == EAGAIN || errno == EWOULDBLOCK;
}

std::string lastFailure() {
    return std::strerror(errno);
}

void shutdown(Socket socket) {
    ::shutdown(number(socket), SHUT_RDWR);
}

void shutdownWrites(Socket socket) {
    ::shutdown(number(socket), SHUT_WR);
}

void reset(Socket& socket) {
    // A close with a linger time of zero is a reset; the caller keeps the descriptor.
    const linger none{1, 0};
    ::setsockopt(number(socket), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    const int placeholder = newSocket();
    ::dup2(placeholder, number(socket));
    ::close(placeholder);
}

void close(Socket socket) {
    ::close(number(socket));
}

std::vector<Socket> connectedTo(std::uint16_t port) {
    std::vector<Socket> found;
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

bool hasNoDelay(Socket socket) {
    int value = 0;
    socklen_t size = sizeof value;
    return ::getsockopt(number(socket), IPPROTO_TCP, TCP_NODELAY, &value, &size) == 0 && value != 0;
}

void blockBrokenPipe() {
    sigset_t brokenPipe;
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
}

} // namespace support::sockets
