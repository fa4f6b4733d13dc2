// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace platform {

/// Whether the account `user`, in UTF-8, may administer this machine. False for an empty name, for
/// an unknown account, and if the system can't say. On Windows: whether the account belongs,
/// directly or through other groups, to the local Administrators. Elsewhere: whether it is root or
/// a member of the groups sudo, wheel or admin. Queries the system on each call, which may query a
/// directory service.
bool isAdministrator(const std::string& user);

} // namespace platform
