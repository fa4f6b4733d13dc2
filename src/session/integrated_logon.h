// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <boost/shared_ptr.hpp>

#include "platform/security_context.h"

namespace hessiancln {
class ClientConnection;
}

/// Login as the current user of this system, without a password.
namespace session {

/// The account name of the process in UTF-8, without a domain; empty if unknown. Once it is known,
/// the system isn't asked again. Waits with the thread's `WaitHook`; empty if the user gives up.
std::string currentWindowsUser();

/// Whether the current user of this system can be logged on now.
bool integratedLogonAvailable();

/// Exchanges tokens between this system and the agent until the security context is complete. `url`
/// is the agent's base URL, `version` that of this client. On a thread with a `WaitHook`, the
/// operations run on another thread, and must outlive it.
///
/// True: `connectionOut` is the session's root object from the agent's last answer, possibly null.
/// False: the logon didn't complete, and `connectionOut` is unchanged; so it is if an exception of
/// the remote call propagates, or the `invoke_exception` of a user who gives up.
bool performIntegratedLogon(boost::shared_ptr<hessiancln::ClientConnection>& connectionOut,
                            hessiancln::ClientConnection& bootstrap, const std::string& url,
                            const std::string& version, platform::SecurityOperations& operations);

} // namespace session
