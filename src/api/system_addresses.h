// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hessiancln {

/// Joins the addresses of the storage server into one string, separated by a backslash and a
/// semicolon.
std::string joinSystemAddresses(const std::vector<std::string>& addresses);

/// Splits such a string into addresses, trims them, and skips empty ones.
std::vector<std::string> splitSystemAddresses(std::string_view text);

} // namespace hessiancln
