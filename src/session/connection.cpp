// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/connection.h"

#include <cassert>
#include <exception>
#include <utility>

#include <QCoreApplication>

#include <boost/make_shared.hpp>

#include "api/client_connection.h"
#include "hessian/serialize_exception.h"
#include "session/agent_kind.h"
#include "session/agent_url.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "transport/call_passage.h"
#include "transport/raw_stream_dispatcher.h"

namespace session {

using hessiancln::CallPassage;
using hessiancln::ClientConnection;
using hessianser::serialize_exception;
using Root = boost::shared_ptr<ClientConnection>;

namespace {

// The version sent to the agent. The version shown to users is a different one.
const std::string clientVersion = "13.0.0.0";

/// Stores the kind of the agent before checking it, so that it stays visible after a refusal.
void admitAgent(ClientConnection& bootstrap) {
    g_clientType = bootstrap.getTarnClientType();
    g_isMobileClient = isMobileAgent(g_clientType);
    g_isNotebookClient = isNotebookAgent(g_clientType);
    if (!isAdmittedAgent(g_clientType)) {
        const QString text =
            QCoreApplication::translate("Session", "It is not allowed to connect to %1 using %2.");
        throw serialize_exception(toWire(
            text.arg(fromWire(agentKindName(g_clientType)), QStringLiteral("Tarn-Mobile User"))));
    }
}

/// The agent accepts frames on the same port as HTTP.
void moveToRawStream(ClientConnection& root) {
    root.setDispatcher(
        boost::make_shared<hessiancln::CRawStreamDispacher>(0u, std::string(), true));
}

} // namespace

void connectToAgent(const std::string& address, const std::string& user,
                    const std::string& password, std::int32_t flag) {
    CallPassage::refuseInside();
    std::string apiUrl;
    std::string baseUrl;
    normalizeAgentUrl(address, apiUrl, baseUrl);
    // Created before the lock is taken, so that it is destroyed after the lock is released.
    ClientConnection bootstrap(apiUrl, false, 0, std::string());
    const std::lock_guard lock(g_connectionMutex);
    g_connection.reset();
    admitAgent(bootstrap);

    Root root;
    const bool integrated = user.empty() && integratedLogonAvailable();
    if (!integrated)
        root = bootstrap.login(baseUrl, clientVersion, user, password, flag);
    else if (!performIntegratedLogon(root, bootstrap, baseUrl, clientVersion,
                                     *platform::securityOperations()))
        return;
    // An agent may end a login with neither a fault nor a session.
    if (!root)
        return;
    moveToRawStream(*root);
    g_connection = std::move(root);
    g_currentUser = integrated ? currentWindowsUser() : user;
}

void disconnectFromAgent() {
    assert(!CallPassage::underWay());
    if (CallPassage::underWay())
        return;
    const std::lock_guard lock(g_connectionMutex);
    if (!g_connection)
        return;
    try {
        g_connection->logout();
    } catch (const std::exception&) {
        // A dead agent must not stop the disconnect.
    }
    g_connection.reset();
}

Root getConnection() {
    CallPassage::refuseInside();
    const std::lock_guard lock(g_connectionMutex);
    if (!g_connection)
        throw serialize_exception("No API connection exists");
    return g_connection;
}

QStringList readDomainList(const std::string& address) {
    QStringList domains;
    try {
        std::string apiUrl;
        std::string baseUrl;
        normalizeAgentUrl(address, apiUrl, baseUrl);
        ClientConnection bootstrap(apiUrl, false, 0, std::string());
        for (const std::string& domain : bootstrap.getAvailableDomains())
            domains.append(fromWire(domain));
    } catch (const std::exception&) {
        // Without domains, the login simply offers no choice.
    }
    return domains;
}

} // namespace session
