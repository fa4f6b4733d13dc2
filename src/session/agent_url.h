// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace session {

/// Completes what a user calls an agent: https unless a scheme is given, port 4411 unless a port
/// is. `baseUrl` is the result, `apiUrl` the entry point behind it.
void normalizeAgentUrl(const std::string& address, std::string& apiUrl, std::string& baseUrl);

} // namespace session
