// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/integrated_logon.h"

#include <utility>

#include "api/client_connection.h"
#include "session/sspi_client_context.h"
#include "session/token_frame.h"

namespace session {

using hessiancln::ClientConnection;
using platform::SecurityOperations;

namespace {

// The service runs on the user's machine, whatever its address.
const char* const targetName = "OstrandBakSvc/localhost";

} // namespace

bool integratedLogonAvailable() {
    SecurityOperations* const operations = platform::securityOperations();
    return operations && operations->available();
}

bool performIntegratedLogon(boost::shared_ptr<ClientConnection>& connectionOut,
                            ClientConnection& bootstrap, const std::string& url,
                            const std::string& version, SecurityOperations& operations) {
    SspiClientContext context(operations);
    boost::shared_ptr<ClientConnection> root;
    while (!context.done() && context.runRound(targetName) && !context.outToken().empty()) {
        auto answer = bootstrap.sspi_login(url, version, frameToken(context.outToken()));
        root = std::move(answer.conn);
        context.setInToken(framedToken(answer.context));
    }
    if (!context.done())
        return false;
    connectionOut = std::move(root);
    return true;
}

} // namespace session
