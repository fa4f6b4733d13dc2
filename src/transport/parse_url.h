// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace hessiancln {

/// Splits the URL of a remote object. `path` is "/" if there is none; `port` is that of the scheme
/// if none is given. Raises `invoke_exception`.
void parseUrl(const std::string& url, bool& useTls, std::string& host, std::string& path,
              std::uint32_t& port);

} // namespace hessiancln
