// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

/// Interpretation of the fields of the login dialog. The text of its user field has two parts: the
/// user and, after the first colon, the address of the agent.
namespace session {

/// The address to log in to, trimmed and without a trailing slash; the agent on this machine if the
/// text has no address.
QString agentAddressOf(const QString& userText);

/// Throws `std::invalid_argument` if the address has an invalid port, that is, anything but a
/// decimal number from 1 to 65535.
void checkPort(const QString& agentAddress);

/// The host to show for `agentAddress`, without scheme and port.
QString hostForDisplay(const QString& agentAddress);

/// The user to log in as. `asCurrentUser` selects the current user of the system; `domain` is the
/// selected domain if the agent offers any. A name that has a domain keeps it; a leading backslash
/// means no domain.
QString loginUserOf(const QString& userText, bool asCurrentUser,
                    const std::optional<QString>& domain);

} // namespace session
