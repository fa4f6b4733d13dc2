// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace simulator {

/// What a login gives. It lives as long as an object of it.
struct Session {
    std::string baseUrl; ///< as the client calls the agent; its objects' URLs begin with it
    std::string user;
    bool ended = false;
};

} // namespace simulator
