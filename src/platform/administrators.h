// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace platform {

/// Whether the account `user`, in UTF-8, may administer this machine. False for an empty name, for
/// one that the system doesn't know, and if the system can't tell. On Windows: whether the account
/// belongs, at any remove, to the local Administrators. Elsewhere: whether it is root, or a member
/// of the groups sudo, wheel or admin. Asks the system each time, which may ask a directory
/// service.
bool isAdministrator(const std::string& user);

} // namespace platform
