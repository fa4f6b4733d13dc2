// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hessiancln {

/// The addresses of the storage server as they stand in one text, with a backslash and a semicolon
/// between each two.
std::string joinSystemAddresses(const std::vector<std::string>& addresses);

/// The addresses in such a text, without the blanks around them; an empty one is left out.
std::vector<std::string> splitSystemAddresses(std::string_view text);

} // namespace hessiancln
