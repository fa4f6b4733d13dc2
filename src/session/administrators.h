// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace session {

/// Whether the account `user`, in UTF-8, may administer this machine; see
/// `platform::isAdministrator`. Waits with the thread's `WaitHook`; false if the user gives up.
bool isAdministrator(const std::string& user);

} // namespace session
