// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <QStringList>

#include "session/process_values.h"

/// Login to an agent and logout. Every `std::string` is UTF-8.
namespace session {

/// Logs in to the agent at `address` and sets `g_connection`. The login uses HTTP, everything after
/// it a single raw stream. An earlier session is dropped first, without a logout.
///
/// An empty `user` requests integrated logon if the system supports it; `password` and `flag` are
/// then ignored. `flag` is 1 for a login with a password, else 0.
///
/// Throws an exception derived from `std::exception` if the login is refused or fails. If an
/// integrated logon fails inside the local system, nothing is thrown and `g_connection` is null, so
/// the caller must check `connectedToAgent`. After any failure `g_connection` is null,
/// `g_currentUser` is unchanged, and the agent's kind is stored if the agent reported it.
void connectToAgent(const std::string& address, const std::string& user,
                    const std::string& password, std::int32_t flag);

/// Logs out if there is a session. A dead agent doesn't prevent it: no exception derived from
/// `std::exception` escapes.
void disconnectFromAgent();

/// The session's root object, kept alive by the copy. Throws `serialize_exception` without a
/// session. All remote work starts here.
boost::shared_ptr<hessiancln::ClientConnection> getConnection();

/// The login domains of the agent at `address`, in its order; empty if the request fails. Leaves
/// the session alone.
QStringList readDomainList(const std::string& address);

} // namespace session
