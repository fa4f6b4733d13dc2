// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace platform {

/// The account name of the process in UTF-8, without a domain; empty if unknown.
std::string currentWindowsUser();

} // namespace platform
