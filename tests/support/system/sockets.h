// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// The system's own TCP sockets on 127.0.0.1, independent of the transport.
namespace support::sockets {

/// Owned by the receiver, which calls `close`.
using Socket = std::intptr_t;

/// With a `port` of 0 the system picks one and sets it. `backlog` is the length of the queue of
/// connections that aren't accepted yet; one more than it comes up. Throws `std::system_error`.
Socket listenOnLoopback(std::uint16_t& port, int backlog = 64);

/// The next connection; negative if there will be none.
Socket accept(Socket listener);

/// Negative if the port has no listener.
Socket connectToLoopback(std::uint16_t port);

/// How long a read may wait before it fails.
void limitReads(Socket socket, std::chrono::milliseconds limit);
void limitWrites(Socket socket, std::chrono::milliseconds limit);
void sendAtOnce(Socket socket);

/// 0 at the end of the stream, negative on a failure.
std::ptrdiff_t receive(Socket socket, char* into, std::size_t size);
/// Negative on a failure. A closed peer causes no signal.
std::ptrdiff_t send(Socket socket, const char* from, std::size_t size);

/// Whether the last failure of this thread was a reset.
bool wasReset();
bool wasTimeout();
std::string lastFailure();

/// Ends both directions; unblocks a read on another thread.
void shutdown(Socket socket);
/// Ends one direction: what is still read goes on.
void shutdownWrites(Socket socket);
/// Closes so that the other side gets a reset. `socket` stays open, and leads nowhere.
void reset(Socket& socket);
void close(Socket socket);

/// The sockets of this process that are connected to this port: the client's ends, for a look at
/// what no public function shows, and for faults that no peer can cause.
std::vector<Socket> connectedTo(std::uint16_t port);

/// Whether a small write on this socket leaves at once.
bool hasNoDelay(Socket socket);

/// Keeps the signal of a broken pipe from this thread, where there is one.
void blockBrokenPipe();

} // namespace support::sockets
