// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/process_values.h"

#include <cassert>

#include "transport/call_passage.h"

namespace session {

boost::shared_ptr<hessiancln::ClientConnection> g_connection;
std::mutex g_connectionMutex;
std::int32_t g_clientType = 0;
bool g_isMobileClient = false;
bool g_isNotebookClient = false;
bool g_isCentrallyManaged = false;
bool g_is2FAEnabled = false;
std::string g_currentUser;
QString g_language;

bool connectedToAgent() {
    assert(!hessiancln::CallPassage::underWay());
    std::unique_lock lock(g_connectionMutex, std::defer_lock);
    // A login or logout of this thread holds the lock.
    if (!hessiancln::CallPassage::underWay())
        lock.lock();
    else if (!lock.try_lock())
        return false;
    return g_connection != nullptr;
}

std::int32_t clientType() {
    return g_clientType;
}

const std::string& currentUser() {
    return g_currentUser;
}

} // namespace session
