// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

/// What the fields of the login dialog mean. The text of its user field carries two things: the
/// user and, behind the first colon, the address of the agent.
namespace session {

/// The address to log in to, without blanks around it and a slash at its end; the agent on this
/// machine if the text has no address.
QString agentAddressOf(const QString& userText);

/// Raises `std::invalid_argument` if the address has a port that no host has: one outside 1 to
/// 65535.
void checkPort(const QString& agentAddress);

/// The host to show for `agentAddress`, without scheme and port.
QString hostForDisplay(const QString& agentAddress);

/// The user to log in as. `asCurrentUser` tells that the currently logged in user was asked for,
/// `domain` is the chosen domain if the agent offers any. A name that has a domain keeps it; a
/// leading backslash means that no domain is wanted.
QString loginUserOf(const QString& userText, bool asCurrentUser,
                    const std::optional<QString>& domain);

} // namespace session
