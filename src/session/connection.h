// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <QStringList>

#include "session/process_values.h"

/// Logging in to an agent and out again. Text is UTF-8 wherever it is a `std::string`.
namespace session {

/// Logs in to the agent at `address` and sets `g_connection`. Login goes over HTTP, all that
/// follows over one raw stream. An earlier session is dropped first, without a logout.
///
/// An empty `user` asks for integrated logon where this system offers it; `password` and `flag`
/// are then ignored. `flag` is 1 for a login with a password, else 0.
///
/// Raises an exception derived from `std::exception` when the login is refused or fails. An
/// integrated logon that fails inside this system raises nothing and leaves `g_connection` null,
/// so a caller has to ask `connectedToAgent`. After any failure `g_connection` is null,
/// `g_currentUser` is what it was, and the agent's kind is stored if the agent told it.
void connectToAgent(const std::string& address, const std::string& user,
                    const std::string& password, std::int32_t flag);

/// Logs out if there is a session. A dead agent doesn't stop it: nothing derived from
/// `std::exception` leaves it.
void disconnectFromAgent();

/// The session's root object, kept alive by the copy. Raises `serialize_exception` when there is
/// no session. All remote work starts here.
boost::shared_ptr<hessiancln::ClientConnection> getConnection();

/// The domains that the agent at `address` offers for login, in its order; empty if it can't be
/// asked. Leaves the session alone.
QStringList readDomainList(const std::string& address);

} // namespace session
