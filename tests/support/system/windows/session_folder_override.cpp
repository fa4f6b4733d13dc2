// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Linked into a test and the clients that it starts, so that they don't meet those of the user.
#include <cstdlib>

#include "platform/session_folder.h"

// Found before the one in the platform library, which ignores the environment.
std::string platform::sessionFilePrefix() {
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    return std::string(folder ? folder : ".") + "/session-0-";
}
