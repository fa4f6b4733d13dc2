// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <mutex>
#include <string>

#include <QString>

#include <boost/shared_ptr.hpp>

namespace hessiancln {
class ClientConnection;
}

/// Process-wide values of the only session. They exist before `main` begins and after it returns.
namespace session {

/// The session's root object; null means not connected. This value alone is the connection state of
/// the whole program. Read it through `getConnection` and `connectedToAgent`.
extern boost::shared_ptr<hessiancln::ClientConnection> g_connection;

/// Guards every access to `g_connection`. Held throughout a login or logout, so what runs while
/// this thread waits for the agent must not touch the session.
extern std::mutex g_connectionMutex;

/// The kind reported by the last agent tried, even if it was refused; see agent_kind.h.
extern std::int32_t g_clientType;
extern bool g_isMobileClient;
extern bool g_isNotebookClient;

/// Set when the agent's information is refreshed.
extern bool g_isCentrallyManaged;
extern bool g_is2FAEnabled;

/// The user of the last successful login, in UTF-8.
extern std::string g_currentUser;

/// Language code of the user interface; empty for the built-in English.
extern QString g_language;

bool connectedToAgent();
std::int32_t clientType();
const std::string& currentUser();

} // namespace session
