// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/local_server.h"

#include <sys/socket.h>
#include <unistd.h>

namespace platform {

bool isServedByThisUser(std::intptr_t connection) {
    ucred server{};
    socklen_t size = sizeof server;
    return getsockopt(static_cast<int>(connection), SOL_SOCKET, SO_PEERCRED, &server, &size) == 0 &&
           server.uid == geteuid();
}

} // namespace platform
