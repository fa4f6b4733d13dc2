// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace platform {

/// Whether the server at the other end of a local connection runs as the user of this process.
/// `connection` is the handle of a named pipe on Windows, elsewhere the descriptor of a Unix-domain
/// socket. False if the system doesn't say.
bool isServedByThisUser(std::intptr_t connection);

} // namespace platform
