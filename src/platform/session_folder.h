// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace platform {

/// Where the programs of one user in one desktop session find each other: the first part of a file
/// name, in UTF-8. Empty on systems where the desktop has a folder for that.
std::string sessionFilePrefix();

} // namespace platform
