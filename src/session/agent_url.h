// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace session {

/// Completes an agent address typed by the user: adds https without a scheme, and port 4411 without
/// a port. `baseUrl` is the result, `apiUrl` its entry point.
void normalizeAgentUrl(const std::string& address, std::string& apiUrl, std::string& baseUrl);

} // namespace session
