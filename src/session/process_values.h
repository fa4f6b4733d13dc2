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

/// What the whole process knows about its one session. Alive from before `main` until after it.
namespace session {

/// The session's root object; null means not connected. This one value is the state of the
/// connection for the whole program. Read it through `getConnection` and `connectedToAgent`.
extern boost::shared_ptr<hessiancln::ClientConnection> g_connection;

/// Guards each read and write of `g_connection`. Held for the whole of a login or logout.
extern std::mutex g_connectionMutex;

/// What the agent of the last attempt said it is, also if it was refused; see agent_kind.h.
extern std::int32_t g_clientType;
extern bool g_isMobileClient;
extern bool g_isNotebookClient;

/// Written by whoever refreshes the agent's information.
extern bool g_isCentrallyManaged;
extern bool g_is2FAEnabled;

/// The user of the last login that succeeded, in UTF-8.
extern std::string g_currentUser;

/// Language code of the interface; empty for the built-in English.
extern QString g_language;

bool connectedToAgent();
std::int32_t clientType();
const std::string& currentUser();

} // namespace session
