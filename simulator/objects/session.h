// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace simulator {

/// The result of a login. Lives as long as any of its objects.
struct Session {
    std::string baseUrl; ///< the agent's URL as used by the client; prefix of the URLs of its
                         ///< objects
    std::string user;
    bool ended = false;
};

} // namespace simulator
