// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <boost/shared_ptr.hpp>

#include "platform/security_context.h"
#include "platform/user_name.h"

namespace hessiancln {
class ClientConnection;
}

/// Logging in as the current user of this system, without a password.
namespace session {

using platform::currentWindowsUser;

/// Whether this system can log on its current user now.
bool integratedLogonAvailable();

/// Carries tokens between this system and the agent until the security context is complete. `url`
/// is the agent's base URL, `version` that of this client.
///
/// True: `connectionOut` holds what the agent's last answer gave as the session's root object,
/// which may be null. False: the logon didn't complete, and `connectionOut` is untouched, as it is
/// when an exception of the remote call passes through.
bool performIntegratedLogon(boost::shared_ptr<hessiancln::ClientConnection>& connectionOut,
                            hessiancln::ClientConnection& bootstrap, const std::string& url,
                            const std::string& version, platform::SecurityOperations& operations);

} // namespace session
