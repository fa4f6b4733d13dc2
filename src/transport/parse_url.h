// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace hessiancln {

/// Splits the URL of a remote object. `path` defaults to "/", `port` to that of the scheme. Throws
/// `invoke_exception`.
void parseUrl(const std::string& url, bool& useTls, std::string& host, std::string& path,
              std::uint32_t& port);

} // namespace hessiancln
